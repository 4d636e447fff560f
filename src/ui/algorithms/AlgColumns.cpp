#include "ui/algorithms/AlgColumns.h"

#include "crypto/catalogue/Catalogue.h"
#include "ui/algorithms/AlgAdviceText.h"

#include <QApplication>
#include <QCoreApplication>
#include <QPainter>
#include <algorithm>
#include <numeric>

namespace thisapp {

using namespace tessaly;

namespace {

struct AlgColumns
{
    Q_DECLARE_TR_FUNCTIONS(AlgColumns)
};

QRect column(const QRect& row, int left, int width, Qt::LayoutDirection direction)
{
    return QStyle::visualRect(direction, row, QRect(row.left() + left, row.top(), width, row.height()));
}

} // namespace

QStringList algColumnTitles()
{
    return {AlgColumns::tr("Algorithm"), AlgColumns::tr("Key bits"), AlgColumns::tr("Block bits"),
            AlgColumns::tr("Mode"), AlgColumns::tr("Remark")};
}

std::array<int, AlgColumnCount> algColumnWidths(const QFontMetrics& metrics)
{
    std::array<int, AlgColumnCount> widths{};
    const int room = metrics.averageCharWidth() * 3;
    const auto widen = [&](int at, const QString& text) {
        widths[static_cast<std::size_t>(at)] =
            std::max(widths[static_cast<std::size_t>(at)], metrics.horizontalAdvance(text) + room);
    };
    const QStringList titles = algColumnTitles();
    for (int at = 0; at < AlgColumnCount; ++at)
        widen(at, titles[at]);
    for (const auto& entry : crypto::catalogue()) {
        widen(0, QString::fromLatin1(entry.name.data()));
        widen(AlgColumnCount - 2, QString::fromLatin1(crypto::modeName(entry.record.mode).data()));
        widen(AlgColumnCount - 1, algAdvice(entry.advice).remark);
    }
    return widths;
}

void AlgItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const QStringList columns = index.data(AlgColumnsRole).toStringList();
    if (columns.size() != AlgColumnCount - 1)
        return;
    const auto widths = algColumnWidths(option.fontMetrics);
    const bool whole = std::accumulate(widths.begin(), widths.end(), 0) <= option.rect.width();
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    QPalette palette = option.palette;
    const auto draw = [&](int left, int width, const QString& text, Qt::Alignment alignment) {
        QApplication::style()->drawItemText(
            painter, column(option.rect, left, width, option.direction),
            static_cast<int>(QStyle::visualAlignment(option.direction, alignment) | Qt::AlignVCenter),
            palette, enabled, text, selected ? QPalette::HighlightedText : QPalette::Text);
    };
    const int room = option.fontMetrics.averageCharWidth() * 3;
    int left = widths[0];
    for (std::size_t at = 1; whole && at < AlgColumnCount - 1; left += widths[at++])
        draw(left, widths[at] - room, columns[static_cast<int>(at) - 1],
             at < 3 ? Qt::AlignRight : Qt::AlignLeft);
    palette.setColor(QPalette::Text,
                     messageColor(static_cast<MessageKind>(index.data(AlgKindRole).toInt()), palette));
    const int noteWidth = widths.back();
    if (whole)
        draw(left, noteWidth, columns.last(), Qt::AlignLeft);
    else if (widths[0] + noteWidth <= option.rect.width())
        draw(option.rect.width() - noteWidth, noteWidth - room / 3, columns.last(), Qt::AlignRight);
}

} // namespace thisapp
