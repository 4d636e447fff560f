#include "ui/style/FitToScreen.h"

#include <QLayout>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QWidget>

namespace thisapp {

namespace {

/// Around the dialog, which the window manager adds once it shows.
QSize decoration(const QWidget& dialog)
{
    const QStyle& style = *dialog.style();
    const int border = style.pixelMetric(QStyle::PM_MdiSubWindowFrameWidth, nullptr, &dialog);
    return {2 * border, 2 * border + style.pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &dialog)};
}

} // namespace

void fitToScreen(QWidget& dialog, QSize wanted)
{
    dialog.ensurePolished();
    for (QScrollArea* page : dialog.findChildren<QScrollArea*>())
        page->updateGeometry(); // learns of changed contents only later, by an event
    if (dialog.layout() != nullptr)
        dialog.layout()->activate();
    if (!wanted.isValid())
        wanted = dialog.sizeHint();
    const QWidget* place = dialog.parentWidget() != nullptr ? dialog.parentWidget() : &dialog;
    const QSize room = place->screen()->availableSize() - decoration(dialog);
    if (wanted.height() > room.height()) // it will scroll
        wanted.rwidth() += dialog.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &dialog);
    dialog.resize(wanted.boundedTo(room));
}

} // namespace thisapp
