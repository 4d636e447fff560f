#include "ui/style/ThemeChange.h"

#include <QGuiApplication>

namespace thisapp {

void onThemeChange(QObject& owner, std::function<void()> refresh)
{
    // Queued: the signal comes before the widgets have their new palettes.
    QObject::connect(qGuiApp, &QGuiApplication::paletteChanged, &owner, std::move(refresh),
                     Qt::QueuedConnection);
}

} // namespace thisapp
