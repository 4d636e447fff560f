#include "lib/sync/Locker.h"
#include "lib/sync/SafeData.h"
#include "lib/sync/Signal.h"
#include "support/Eventually.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <future>
#include <memory>
#include <system_error>
#include <vector>

namespace {

using namespace std::chrono_literals;
using tessaly::sync::Locker;
using tessaly::sync::Signal;
using tessaly::sync::internal::SafeData;

TEST(Locker, IsRecursiveAndExclusive)
{
    Locker locker;
    std::lock_guard outer(locker);
    ASSERT_TRUE(locker.tryLock());
    locker.unlock();
    std::thread([&] {
        EXPECT_FALSE(locker.tryLock());
        EXPECT_THROW(locker.unlock(), std::system_error) << "another thread's lock";
    }).join();
    EXPECT_THROW(Locker().unlock(), std::system_error);
}

TEST(SafeData, CountsEveryIncrementOfTwoThreads)
{
    SafeData<Locker, int> counter(0);
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
    SafeData<Locker, std::shared_ptr<void>> data;
    data.set(std::shared_ptr<void>(nullptr, [&](void*) {
        std::thread([&] {
            if ((unlocked = data.tryLock()))
                data.unlock();
        }).join();
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
    EXPECT_GE(std::chrono::steady_clock::now() - start, 30ms);
}

TEST(Signal, ReleasesAllWhoWait)
{
    for (const bool reset : {false, true, true, true, true, true}) { // a few may run before the reset anyway
        Signal signal;
        std::atomic<int> arrived = 0;
        std::vector<std::future<bool>> waiters;
        for (int i = 0; i < 40; ++i)
            waiters.push_back(std::async(std::launch::async, [&, forever = i % 2 == 0] {
                ++arrived;
                return forever ? signal.wait() : signal.wait(10000);
            }));
        EXPECT_TRUE(test::eventually([&] { return arrived == 40; }));
        std::this_thread::sleep_for(100ms); // from the count into the wait

        EXPECT_TRUE(signal.set().ok());
        EXPECT_TRUE(!reset || signal.reset().ok());
        const auto end = std::chrono::steady_clock::now() + 2s;
        const bool all = std::ranges::all_of(
            waiters, [&](auto& waiter) { return waiter.wait_until(end) == std::future_status::ready; });
        EXPECT_EQ(signal.wait(0), !reset);
        EXPECT_TRUE(all);
        for (auto& waiter : waiters) { // so that a failure ends, too
            while (waiter.wait_for(1ms) != std::future_status::ready)
                ASSERT_TRUE(signal.set().ok());
            EXPECT_TRUE(waiter.get());
        }
        ASSERT_FALSE(HasFailure());
    }
}

} // namespace
