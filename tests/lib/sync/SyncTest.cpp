#include "lib/sync/Locker.h"
#include "lib/sync/SafeData.h"
#include "lib/sync/Signal.h"
#include "support/Eventually.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <memory>
#include <mutex>
#include <system_error>
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
    std::thread([&] {
        taken = locker.tryLock();
        EXPECT_THROW(locker.unlock(), std::system_error) << "another thread's lock";
    }).join();
    EXPECT_FALSE(taken);
    EXPECT_THROW(Locker().unlock(), std::system_error);
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

TEST(SafeData, DestroysTheOldValueOutsideTheLock)
{
    bool unlocked = false;
    tessaly::sync::internal::SafeData<Locker, std::shared_ptr<int>> data;
    data.set(std::shared_ptr<int>(new int, [&](const int* value) {
        std::thread([&] {
            if ((unlocked = data.tryLock()))
                data.unlock();
        }).join();
        delete value;
    }));
    data.set(nullptr);
    EXPECT_TRUE(unlocked);
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

/// Whether 40 waiters pass at once when the event is set.
bool allPass(bool resetAtOnce)
{
    constexpr int Count = 40;
    Signal signal;
    std::atomic<int> arrived = 0;
    std::atomic<int> passed = 0;
    std::vector<std::thread> waiters;
    for (int i = 0; i < Count; ++i)
        waiters.emplace_back([&, forever = i % 2 == 0] {
            ++arrived;
            passed += (forever ? signal.wait() : signal.wait(10000)) ? 1 : 0;
        });
    EXPECT_TRUE(test::eventually([&] { return arrived == Count; }));
    std::this_thread::sleep_for(std::chrono::milliseconds(100)); // from the count into the wait

    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(signal.set().ok());
    EXPECT_TRUE(!resetAtOnce || signal.reset().ok());
    while (passed < Count && std::chrono::steady_clock::now() - start < std::chrono::seconds(2))
        std::this_thread::yield();
    const bool all = passed == Count;
    EXPECT_EQ(signal.wait(0), !resetAtOnce);
    for (; passed < Count; std::this_thread::yield()) // so that a failure ends, too
        EXPECT_TRUE(signal.set().ok());
    for (auto& waiter : waiters)
        waiter.join();
    return all;
}

TEST(Signal, ReleasesAllWhoWait)
{
    EXPECT_TRUE(allPass(false));
    for (int round = 0; round < 5; ++round) // now and then a waiter runs before the reset anyway
        ASSERT_TRUE(allPass(true));
}

} // namespace
