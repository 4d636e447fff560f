#include "lib/sync/Locker.h"
#include "lib/sync/SafeData.h"
#include "lib/sync/Signal.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <mutex>
#include <thread>
#include <vector>

namespace {

using tessaly::sync::Locker;
using tessaly::sync::Signal;

TEST(Locker, IsRecursiveAndExclusive)
{
    Locker locker;
    std::lock_guard outer(locker);
    ASSERT_TRUE(locker.tryLock());
    locker.unlock();

    bool taken = true;
    std::thread([&] { taken = locker.tryLock(); }).join();
    EXPECT_FALSE(taken);
}

TEST(SafeData, CountsEveryIncrementOfTwoThreads)
{
    tessaly::sync::internal::SafeData<Locker, int> counter(0);
    const auto countTo1000 = [&] {
        for (int n = 0; n < 1000; ++n)
            counter.with([](int& value) {
                const int before = value;
                std::this_thread::yield();
                value = before + 1;
            });
    };
    std::thread other(countTo1000);
    countTo1000();
    other.join();
    EXPECT_EQ(counter.get(), 2000);
}

TEST(Signal, StaysSetUntilReset)
{
    Signal signal;
    ASSERT_TRUE(signal.isValid());
    EXPECT_FALSE(signal.wait(0));
    ASSERT_TRUE(signal.set().ok());
    EXPECT_TRUE(signal.wait());
    ASSERT_TRUE(signal.reset().ok());
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(signal.wait(30));
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(30));
}

TEST(Signal, WakesEveryWaiter)
{
    Signal signal;
    std::atomic<int> passed = 0;
    std::vector<std::thread> waiters;
    for (int i = 0; i < 4; ++i)
        waiters.emplace_back([&] { passed += signal.wait(60000) ? 1 : 0; });
    ASSERT_TRUE(signal.set().ok());
    for (auto& waiter : waiters)
        waiter.join();
    EXPECT_EQ(passed, 4);
}

} // namespace
