#include "ui/style/FitToScreen.h"

#include <QLayout>
#include <QScreen>
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

void fitToScreen(QWidget& dialog)
{
    const QWidget* place = dialog.parentWidget() != nullptr ? dialog.parentWidget() : &dialog;
    dialog.ensurePolished();
    if (dialog.layout() != nullptr)
        dialog.layout()->activate();
    const QSize wanted = dialog.testAttribute(Qt::WA_Resized) ? dialog.size() : dialog.sizeHint();
    dialog.resize(wanted.boundedTo(place->screen()->availableSize() - decoration(dialog)));
}

} // namespace thisapp
