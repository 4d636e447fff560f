#include "app/desktop/linux/LauncherProgress.h"

#include "app/desktop/linux/SessionBus.h"
#include "common/settings/Product.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QVariantMap>

#include <algorithm>

namespace thisapp::desktop {

void LauncherProgress::show()
{
    setVisible(true);
}

void LauncherProgress::hide()
{
    setVisible(false);
}

void LauncherProgress::setVisible(bool visible)
{
    if (m_visible == visible)
        return;
    m_visible = visible;
    send();
}

void LauncherProgress::setValue(int percent)
{
    percent = std::clamp(percent, 0, 100);
    if (m_percent == percent)
        return;
    m_percent = percent;
    if (m_visible)
        send();
}

void LauncherProgress::send()
{
    // Each process has a path of its own, so that a dock can tell several windows apart.
    const QString path =
        QStringLiteral("/com/canonical/unity/launcherentry/%1").arg(QCoreApplication::applicationPid());
    QDBusMessage update = QDBusMessage::createSignal(
        path, QStringLiteral("com.canonical.Unity.LauncherEntry"), QStringLiteral("Update"));
    update << QStringLiteral("application://%1.desktop").arg(QLatin1String(tessaly::QuilletDesktopId))
           << QVariantMap{{QStringLiteral("progress"), m_percent / 100.0},
                          {QStringLiteral("progress-visible"), m_visible}};
    m_bus.send(update);
}

} // namespace thisapp::desktop
