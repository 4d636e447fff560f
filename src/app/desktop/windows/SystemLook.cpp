#include "app/desktop/windows/SystemLook.h"

#include "ui/style/ThemeChange.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>

namespace thisapp::desktop {

namespace {

/// The palette follows the system's choice, as qt.conf asks for.
void chooseStyle()
{
    const bool dark = QApplication::palette().color(QPalette::Window).lightness() < 128;
    const QString wanted = dark ? QStringLiteral("fusion") : QStringLiteral("windowsvista");
    if (QApplication::style()->objectName() != wanted)
        QApplication::setStyle(wanted);
}

} // namespace

SystemLook::SystemLook()
{
    QApplication::setFont(QApplication::font("QMessageBox")); // the general one is that of Windows 2000
    chooseStyle();
    onThemeChange(*this, chooseStyle);
}

} // namespace thisapp::desktop
