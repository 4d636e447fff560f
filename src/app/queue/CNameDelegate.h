#pragma once

#include <QStyledItemDelegate>

/// Shows file names, cut in the middle: their ends tell more than that.
class CNameDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};
