#pragma once

#include <memory>

class QDBusMessage;
class QString;

namespace thisapp::desktop {

class BusSignals;
class SessionBusWriter;

/// Sends messages on the session bus from a thread of its own, because connecting to a bus may take
/// long, and hands on the signals that come. Without a bus they are dropped. Used by one thread, once the
/// application object exists.
class SessionBus
{
public:
    SessionBus();
    /// Sends what is pending, but waits no longer than half a second for it.
    ~SessionBus();
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;

    /// A signal, or a method call whose answer nobody needs. Returns at once.
    void send(const QDBusMessage& message);
    /// From now on received() tells of that signal. Returns at once.
    void listen(const QString& service, const QString& path, const QString& interface, const QString& name);
    const BusSignals& received() const;

private:
    std::unique_ptr<SessionBusWriter> m_writer;
};

} // namespace thisapp::desktop
