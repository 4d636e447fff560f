#pragma once

#include "app/desktop/INotifier.h"

#include <QObject>

class QDBusMessage;

namespace thisapp::desktop {

class SessionBus;

/// Notifications through the desktop's notification server.
class BusNotifier final : public QObject, public INotifier
{
    Q_OBJECT

public:
    explicit BusNotifier(SessionBus& bus);

    void notify(const QString& summary, const QString& body, const NotifierAction& action) override;

private:
    /// Of the server, to everybody: somebody has chosen an action in some notification.
    void takeSignal(const QDBusMessage& message);

    SessionBus& m_bus;
    /// Of the newest notification, and one of a kind: others may offer actions, too.
    QString m_actionKey;
    std::function<void()> m_action;
    bool m_isListening = false;
};

} // namespace thisapp::desktop
