#pragma once

#include "lib/err/ResultCode.h"
#include "lib/thread/IRunnable.h"

#include <cstdint>

namespace tessaly::thread {

enum class WaitStatus : std::uint32_t {
    Finished = 0,
    TimedOut = 1,
    NoJob = 2,
};

/// Runs one job at a time on a thread of its own; reusable once the job has finished.
class IThread
{
public:
    virtual ~IThread() = default;
    /// Not owned; it must outlive the job.
    virtual void setRunnable(IRunnable* runnable) = 0;
    /// (5, 300) without a runnable, (5, 8) while a job runs, (5, 303) when none could be launched.
    virtual ResultCode start(std::uintptr_t param) = 0;
    virtual ResultCode start() = 0;
    [[nodiscard]] virtual WaitStatus wait(unsigned milliseconds) = 0;
    virtual WaitStatus wait() = 0;
    /// Handed to the runnable as its first argument.
    virtual std::uint32_t value() const = 0;
    /// Always 0.
    virtual std::uint32_t reserved() const = 0;
    virtual bool isRunning() const = 0;
    /// What the last finished job returned.
    virtual ResultCode result() const = 0;
    /// For the runnable to look at; the thread itself never acts on it.
    virtual std::int32_t stopFlag() const = 0;
    virtual void setStopFlag(int flag) = 0;
};

} // namespace tessaly::thread
