#pragma once

#include <QAbstractItemView>
#include <QStringList>
#include <QStyledItemDelegate>
#include <array>

namespace thisapp {

/// Where a list item keeps its columns beyond the name: a QStringList of key bits, block bits, mode and
/// remark, and the remark's MessageKind as a number.
inline constexpr int AlgColumnsRole = Qt::UserRole + 1;
inline constexpr int AlgKindRole = Qt::UserRole + 2;

inline constexpr int AlgColumnCount = 5;

QStringList algColumnTitles();

/// In device-independent pixels, for the view's font, wide enough for the whole catalogue.
std::array<int, AlgColumnCount> algColumnWidths(const QFontMetrics& metrics);

/// Paints an algorithm's columns; in a view that is too narrow for them, name and remark only.
class AlgItemDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

} // namespace thisapp
