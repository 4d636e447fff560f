#include "app/desktop/linux/BusNotifier.h"

#include "app/desktop/Desktop.h"
#include "app/desktop/linux/SessionBus.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QStringList>
#include <QVariantMap>

namespace thisapp::desktop {

namespace {

constexpr uint ReplacesNothing = 0;
constexpr int ServersOwnTimeout = -1;

/// Servers read the body as markup. Quotes stay: the simpler servers show them as they come.
QString escaped(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&amp;"))
        .replace(QLatin1Char('<'), QLatin1String("&lt;"))
        .replace(QLatin1Char('>'), QLatin1String("&gt;"));
}

} // namespace

void BusNotifier::notify(const QString& summary, const QString& body, const NotifierAction&)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
    const QString id = QLatin1String(DesktopId);
    call << QCoreApplication::applicationName() << ReplacesNothing << id << summary << escaped(body)
         << QStringList() << QVariantMap{{QStringLiteral("desktop-entry"), id}} << ServersOwnTimeout;
    m_bus.send(call);
}

} // namespace thisapp::desktop
