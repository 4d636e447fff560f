#include "lib/sync/Signal.h"

#include "lib/err/ErrorCodes.h"

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <new>

namespace tessaly::sync {

/// libstdc++ waits on the monotonic clock here, so a change of the wall clock neither shortens nor
/// prolongs a wait.
class Signal::Event
{
    /// Whoever waits now also passes a set that is taken back before it could run.
    auto passes() const
    {
        return [this, before = m_timesSet] { return m_on || m_timesSet != before; };
    }

public:
    void set()
    {
        // Notifying under the lock: a waiter that passes may destroy the event as soon as it has the lock.
        std::lock_guard guard(m_mutex);
        m_on = true;
        ++m_timesSet;
        m_condition.notify_all();
    }

    void reset()
    {
        std::lock_guard guard(m_mutex);
        m_on = false;
    }

    bool waitFor(unsigned milliseconds)
    {
        std::unique_lock guard(m_mutex);
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
        return m_condition.wait_until(guard, deadline, passes());
    }

    void waitForever()
    {
        std::unique_lock guard(m_mutex);
        m_condition.wait(guard, passes());
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_condition;
    bool m_on = false;
    std::uint64_t m_timesSet = 0;
};

Signal::Signal() : m_event(new (std::nothrow) Event)
{
}

Signal::~Signal() = default;

bool Signal::isValid() const
{
    return m_event != nullptr;
}

ResultCode Signal::set()
{
    if (!m_event)
        return err::library(err::NoObject);
    m_event->set();
    return {};
}

ResultCode Signal::reset()
{
    if (!m_event)
        return err::library(err::NoObject);
    m_event->reset();
    return {};
}

bool Signal::wait(unsigned milliseconds)
{
    return m_event && m_event->waitFor(milliseconds);
}

bool Signal::wait()
{
    if (!m_event)
        return false;
    m_event->waitForever();
    return true;
}

} // namespace tessaly::sync
