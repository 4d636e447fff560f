#pragma once

#include <QDBusMessage>
#include <QObject>

namespace thisapp::desktop {

/// Gets the signals of the bus that somebody listens to, on the thread that it was made on.
class BusSignals final : public QObject
{
    Q_OBJECT

signals:
    void notifyReceived(const QDBusMessage& message);

public slots:
    void take(const QDBusMessage& message) { emit notifyReceived(message); }
};

} // namespace thisapp::desktop
