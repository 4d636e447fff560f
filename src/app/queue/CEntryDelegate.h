#pragma once

#include <QStyledItemDelegate>

/// Draws the state of a running file as a progress bar.
class CEntryDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};
