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
    // What surrounds changed contents learns of them only later, by events; so from within to without.
    const QList<QWidget*> parts = dialog.findChildren<QWidget*>();
    for (auto part = parts.crbegin(); part != parts.crend(); ++part) {
        if ((*part)->layout() != nullptr)
            (*part)->layout()->activate();
        if (auto* page = qobject_cast<QScrollArea*>(*part))
            page->updateGeometry();
    }
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
