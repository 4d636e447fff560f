#include "app/desktop/linux/SessionBus.h"

#include "lib/sync/Locker.h"
#include "lib/sync/SafeData.h"
#include "lib/sync/Signal.h"
#include "lib/thread/Thread.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFile>
#include <QString>

#include <atomic>
#include <tuple>
#include <vector>

namespace thisapp::desktop {

namespace {

constexpr unsigned FarewellMilliseconds = 500;

/// Not a global: a thread that is left behind may still ask for it while the process ends.
QString connectionName()
{
    return QStringLiteral("quillet-desktop");
}

/// The bus library would start a bus where there is none.
bool isBusThere()
{
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ||
           QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
}

} // namespace

/// The thread, and the messages that wait for it. Connects when the first one comes.
class SessionBusWriter final : public tessaly::thread::IRunnable
{
public:
    SessionBusWriter() { m_thread.setRunnable(this); }

    void push(const QDBusMessage& message)
    {
        m_pending.with([&message](auto& pending) { pending.push_back(message); });
        std::ignore = m_wakeUp.set();
        if (!m_thread.isRunning())
            std::ignore = m_thread.start();
    }

    /// False when the bus doesn't answer in time.
    bool finish()
    {
        m_finishing = true;
        std::ignore = m_wakeUp.set();
        return m_thread.wait(FarewellMilliseconds) != tessaly::thread::WaitStatus::TimedOut;
    }

    tessaly::ResultCode run(std::uint32_t, std::uintptr_t) override
    {
        if (isBusThere())
            QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName());
        while (m_wakeUp.wait()) {
            std::ignore = m_wakeUp.reset();
            const bool last = m_finishing;
            sendPending();
            if (last)
                break;
        }
        QDBusConnection::disconnectFromBus(connectionName());
        return {};
    }

private:
    void sendPending()
    {
        const QDBusConnection bus(connectionName());
        std::vector<QDBusMessage> messages;
        m_pending.with([&messages](auto& pending) { messages.swap(pending); });
        if (bus.isConnected())
            for (const QDBusMessage& message : messages)
                bus.send(message);
    }

    tessaly::sync::internal::SafeData<tessaly::sync::Locker, std::vector<QDBusMessage>> m_pending;
    tessaly::sync::Signal m_wakeUp;
    std::atomic<bool> m_finishing{false};
    tessaly::thread::Thread m_thread;
};

SessionBus::SessionBus() : m_writer(std::make_unique<SessionBusWriter>())
{
}

SessionBus::~SessionBus()
{
    if (!m_writer->finish())
        std::ignore = m_writer.release(); // its thread still uses it, to the end of the process
}

void SessionBus::send(const QDBusMessage& message)
{
    m_writer->push(message);
}

} // namespace thisapp::desktop
