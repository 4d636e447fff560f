#include "app/desktop/linux/BusNotifier.h"

#include "app/desktop/Desktop.h"
#include "app/desktop/linux/BusSignals.h"
#include "app/desktop/linux/SessionBus.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QStringList>
#include <QUuid>
#include <QVariantMap>

#include <utility>

namespace thisapp::desktop {

namespace {

QString service()
{
    return QStringLiteral("org.freedesktop.Notifications");
}

QString path()
{
    return QStringLiteral("/org/freedesktop/Notifications");
}

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

BusNotifier::BusNotifier(SessionBus& bus) : m_bus(bus)
{
    connect(&bus.received(), &BusSignals::notifyReceived, this, &BusNotifier::takeSignal);
}

void BusNotifier::notify(const QString& summary, const QString& body, const NotifierAction& action)
{
    m_action = action.run;
    m_actionKey = QUuid::createUuid().toString(QUuid::WithoutBraces);
    if (m_action && !std::exchange(m_isListening, true))
        m_bus.listen(service(), path(), service(), QStringLiteral("ActionInvoked"));
    QDBusMessage call =
        QDBusMessage::createMethodCall(service(), path(), service(), QStringLiteral("Notify"));
    const QString id = QLatin1String(DesktopId);
    call << QCoreApplication::applicationName() << ReplacesNothing << id << summary << escaped(body)
         << (m_action ? QStringList{m_actionKey, action.text} : QStringList())
         << QVariantMap{{QStringLiteral("desktop-entry"), id}} << ServersOwnTimeout;
    m_bus.send(call);
}

void BusNotifier::takeSignal(const QDBusMessage& message)
{
    if (m_action && message.arguments().value(1).toString() == m_actionKey)
        m_action();
}

} // namespace thisapp::desktop
