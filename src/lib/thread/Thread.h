#pragma once

#include "lib/sync/Locker.h"
#include "lib/thread/IThread.h"

#include <atomic>
#include <future>

namespace tessaly::thread {

/// start, wait and the destructor belong to the owner's threads, the queries to any thread. Two
/// concurrent starts launch at most one job. The destructor waits for a running job: tell it to
/// end first.
class Thread final : public IThread
{
public:
    Thread() = default;
    ~Thread() override;
    Thread(const Thread&) = delete;
    Thread& operator=(const Thread&) = delete;

    void setRunnable(IRunnable* runnable) override;
    ResultCode start(std::uintptr_t param) override;
    ResultCode start() override;
    [[nodiscard]] WaitStatus wait(unsigned milliseconds) override;
    WaitStatus wait() override;
    std::uint32_t value() const override;
    std::uint32_t reserved() const override;
    bool isRunning() const override;
    ResultCode result() const override;
    std::int32_t stopFlag() const override;
    void setStopFlag(int flag) override;

    /// Before start.
    void setValue(std::uint32_t value);

private:
    void launch(std::uintptr_t param);
    void clearResult();
    void runJob(std::uintptr_t param);
    std::shared_future<void> job() const;

    std::atomic<std::uint32_t> m_value{1};
    std::atomic<IRunnable*> m_runnable{nullptr};
    mutable sync::Locker m_lock; ///< guards m_result and m_job
    ResultCode m_result;
    std::atomic<std::int32_t> m_stopFlag{0};
    std::atomic<bool> m_running{false};
    std::shared_future<void> m_job; ///< of the last job launched
};

} // namespace tessaly::thread
