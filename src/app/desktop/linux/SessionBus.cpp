#include "app/desktop/linux/SessionBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFile>
#include <QObject>
#include <QString>
#include <QThread>

namespace thisapp::desktop {

namespace {

const QString ConnectionName = QStringLiteral("quillet-desktop");
constexpr unsigned long FarewellMilliseconds = 500;

/// The bus library would start a bus where there is none.
bool isBusThere()
{
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ||
           QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
}

} // namespace

/// Lives on the thread.
class SessionBusWorker : public QObject
{
public:
    void send(const QDBusMessage& message)
    {
        if (!m_tried && isBusThere())
            QDBusConnection::connectToBus(QDBusConnection::SessionBus, ConnectionName);
        m_tried = true;
        if (QDBusConnection bus(ConnectionName); bus.isConnected())
            bus.send(message);
    }

    void finish()
    {
        QDBusConnection::disconnectFromBus(ConnectionName);
        thread()->quit();
    }

private:
    bool m_tried = false;
};

SessionBus::SessionBus() : m_thread(new QThread), m_worker(new SessionBusWorker)
{
    m_worker->moveToThread(m_thread);
    m_thread->start();
}

SessionBus::~SessionBus()
{
    QMetaObject::invokeMethod(
        m_worker, [worker = m_worker] { worker->finish(); }, Qt::QueuedConnection);
    if (!m_thread->wait(FarewellMilliseconds))
        return; // stuck in a bus that doesn't answer: left to the end of the process
    delete m_worker;
    delete m_thread;
}

void SessionBus::send(const QDBusMessage& message)
{
    QMetaObject::invokeMethod(
        m_worker, [worker = m_worker, message] { worker->send(message); }, Qt::QueuedConnection);
}

} // namespace thisapp::desktop
