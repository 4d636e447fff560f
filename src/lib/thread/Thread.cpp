#include "lib/thread/Thread.h"

#include "lib/err/ErrorCodes.h"

#include <chrono>
#include <mutex>
#include <utility>

namespace tessaly::thread {

namespace {

ResultCode call(IRunnable& runnable, std::uint32_t value, std::uintptr_t param)
{
    try {
        return runnable.run(value, param);
    } catch (...) {
        return err::library(err::RunnableThrew);
    }
}

} // namespace

void Thread::setRunnable(IRunnable* runnable)
{
    m_runnable = runnable;
}

ResultCode Thread::start(std::uintptr_t param)
{
    if (m_runnable == nullptr)
        return err::library(err::NoRunnable);
    if (wait(0) == WaitStatus::TimedOut)
        return err::library(err::Busy);
    bool idle = false;
    if (!m_running.compare_exchange_strong(idle, true))
        return err::library(err::Busy);

    std::shared_future<void> previous; // released outside the lock: it may have to wait
    std::lock_guard guard(m_lock);
    m_result = {};
    try {
        previous =
            std::exchange(m_job, std::async(std::launch::async, [this, param] { runJob(param); }).share());
    } catch (...) {
        m_running = false;
        return err::library(err::LaunchFailed);
    }
    return {};
}

ResultCode Thread::start()
{
    return start(0);
}

void Thread::runJob(std::uintptr_t param)
{
    if (IRunnable* runnable = m_runnable) {
        const ResultCode result = call(*runnable, m_value, param);
        std::lock_guard guard(m_lock);
        m_result = result;
    }
    m_running = false;
}

std::shared_future<void> Thread::job() const
{
    std::lock_guard guard(m_lock);
    return m_job;
}

WaitStatus Thread::wait(unsigned milliseconds)
{
    const auto current = job();
    if (!current.valid())
        return WaitStatus::NoJob;
    const auto status = current.wait_for(std::chrono::milliseconds(milliseconds));
    return status == std::future_status::ready ? WaitStatus::Finished : WaitStatus::TimedOut;
}

WaitStatus Thread::wait()
{
    const auto current = job();
    if (!current.valid())
        return WaitStatus::NoJob;
    current.wait();
    return WaitStatus::Finished;
}

std::uint32_t Thread::value() const
{
    return m_value;
}

std::uint32_t Thread::reserved() const
{
    return 0;
}

bool Thread::isRunning() const
{
    return m_running;
}

ResultCode Thread::result() const
{
    std::lock_guard guard(m_lock);
    return m_result;
}

std::int32_t Thread::stopFlag() const
{
    return m_stopFlag;
}

void Thread::setStopFlag(int flag)
{
    m_stopFlag = flag;
}

void Thread::setValue(std::uint32_t value)
{
    m_value = value;
}

} // namespace tessaly::thread
