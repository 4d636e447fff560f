#include "app/queue/CEntryDelegate.h"

#include "app/queue/CQueueModel.h"

#include <QApplication>
#include <QStyle>
#include <QStyleOptionProgressBar>

void CEntryDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const
{
    const QVariant percent = index.data(CQueueModel::PercentRole);
    if (!percent.isValid()) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    const QStyle& style = option.widget != nullptr ? *option.widget->style() : *QApplication::style();
    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, option.widget);
    QStyleOptionProgressBar bar;
    bar.QStyleOption::operator=(option);
    const int margin = option.rect.height() / 6;
    bar.rect = option.rect.adjusted(3 * margin, margin, -margin, -margin);
    bar.state |= QStyle::State_Horizontal;
    bar.maximum = 100;
    bar.progress = percent.toInt();
    bar.text = QStringLiteral("%1%").arg(bar.progress);
    bar.textVisible = true;
    bar.textAlignment = Qt::AlignCenter;
    style.drawControl(QStyle::CE_ProgressBar, &bar, painter, option.widget);
}
