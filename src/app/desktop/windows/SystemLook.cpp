#include "app/desktop/windows/SystemLook.h"

#include "ui/style/DarkPalette.h"

#include <QApplication>
#include <QSettings>
#include <QTimer>

#include <windows.h>

namespace thisapp::desktop {

namespace {

bool isHighContrast()
{
    HIGHCONTRASTW contrast = {};
    contrast.cbSize = sizeof contrast;
    return ::SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

/// In high contrast the system has colours of its own.
bool wantsDark()
{
    const QSettings themes(
        R"(HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Themes\Personalize)",
        QSettings::NativeFormat);
    return !themes.value("AppsUseLightTheme", 1).toBool() && !isHighContrast();
}

} // namespace

SystemLook::SystemLook()
{
    QApplication::setFont(QApplication::font("QMessageBox")); // the general one is that of Windows 2000
    follow();
    qApp->installNativeEventFilter(this);
}

SystemLook::~SystemLook()
{
    if (qApp)
        qApp->removeNativeEventFilter(this);
}

void SystemLook::follow()
{
    if (const bool dark = wantsDark(); m_isDark != dark) {
        m_isDark = dark;
        QApplication::setStyle(dark ? "fusion" : "windowsvista"); // which cannot be dark
        QApplication::setPalette(dark ? darkPalette() : QPalette());
    }
}

/// Queued: the toolkit takes the change to its windows' frames first.
bool SystemLook::nativeEventFilter(const QByteArray& /*type*/, void* message, long* /*result*/)
{
    if (static_cast<const MSG*>(message)->message == WM_SETTINGCHANGE)
        QTimer::singleShot(0, this, &SystemLook::follow);
    return false;
}

} // namespace thisapp::desktop
