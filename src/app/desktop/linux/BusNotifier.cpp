#include "app/desktop/linux/BusNotifier.h"

#include "app/desktop/linux/SessionBus.h"
#include "common/settings/Product.h"

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

void BusNotifier::notify(const QString& summary, const QString& body)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
    call << QCoreApplication::applicationName() << ReplacesNothing
         << QString::fromLatin1(tessaly::QuilletIconName) << summary << escaped(body) << QStringList()
         << QVariantMap{{QStringLiteral("desktop-entry"), QString::fromLatin1(tessaly::QuilletDesktopId)}}
         << ServersOwnTimeout;
    m_bus.send(call);
}

} // namespace thisapp::desktop
