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

/// Not left to the handle's release, which waits only in some libraries and only for the last one.
Thread::~Thread()
{
    Thread::wait();
}

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

    clearResult();
    try {
        launch(param);
    } catch (...) {
        m_running = false;
        return err::library(err::LaunchFailed);
    }
    return {};
}

/// Creates the thread outside the lock. The job begins once its handle is stored: it could else end,
/// and a next job be launched, before that.
void Thread::launch(std::uintptr_t param)
{
    std::promise<void> stored;
    auto body = [this, param, mayBegin = stored.get_future()] {
        mayBegin.wait();
        runJob(param);
    };
    std::shared_future<void> job = std::async(std::launch::async, std::move(body)).share();
    {
        std::lock_guard guard(m_lock);
        std::swap(m_job, job);
    }
    stored.set_value();
}

ResultCode Thread::start()
{
    return start(0);
}

void Thread::clearResult()
{
    std::lock_guard guard(m_lock);
    m_result = {};
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
