#include "app/desktop/linux/SessionBus.h"

#include "app/desktop/linux/BusSignals.h"
#include "lib/sync/Locker.h"
#include "lib/sync/SafeData.h"
#include "lib/sync/Signal.h"
#include "lib/thread/Thread.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFile>
#include <QString>

#include <atomic>
#include <functional>
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

    using Task = std::function<void(QDBusConnection& bus)>;

    void push(const Task& task)
    {
        m_pending.with([&task](auto& pending) { pending.push_back(task); });
        std::ignore = m_wakeUp.set();
        if (!m_thread.isRunning())
            std::ignore = m_thread.start();
    }

    /// Lives as long as the thread does, which may have it connected.
    BusSignals received;

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
        QDBusConnection bus(connectionName());
        std::vector<Task> tasks;
        m_pending.with([&tasks](auto& pending) { tasks.swap(pending); });
        if (bus.isConnected())
            for (const Task& task : tasks)
                task(bus);
    }

    tessaly::sync::internal::SafeData<tessaly::sync::Locker, std::vector<Task>> m_pending;
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
    m_writer->push([message](const QDBusConnection& bus) { bus.send(message); });
}

void SessionBus::listen(const QString& service, const QString& path, const QString& interface,
                        const QString& name)
{
    m_writer->push([=, to = &m_writer->received](QDBusConnection& bus) {
        bus.connect(service, path, interface, name, to, SLOT(take(QDBusMessage)));
    });
}

const BusSignals& SessionBus::received() const
{
    return m_writer->received;
}

} // namespace thisapp::desktop
