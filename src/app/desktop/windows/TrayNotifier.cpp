#include "app/desktop/windows/TrayNotifier.h"

#include "app/desktop/windows/MainWindow.h"

#include <QApplication>
#include <QWidget>

namespace thisapp::desktop {

TrayNotifier::TrayNotifier()
{
    connect(&m_icon, &QSystemTrayIcon::messageClicked, this, &TrayNotifier::showWindow);
    connect(&m_icon, &QSystemTrayIcon::activated, this, &TrayNotifier::showWindow);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive)
            m_icon.hide();
    });
}

void TrayNotifier::notify(const QString& summary, const QString& body, const NotifierAction&)
{
    m_icon.setIcon(QApplication::windowIcon());
    m_icon.setToolTip(QCoreApplication::applicationName());
    m_icon.show();
    m_icon.showMessage(summary, body, QApplication::windowIcon());
}

void TrayNotifier::showWindow()
{
    QWidget* window = mainWindow();
    if (window == nullptr)
        return;
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->raise();
    window->activateWindow();
}

} // namespace thisapp::desktop
