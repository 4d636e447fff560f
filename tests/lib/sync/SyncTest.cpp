#include "lib/sync/Locker.h"
#include "lib/sync/SafeData.h"
#include "lib/sync/Signal.h"
#include "support/Eventually.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <future>
#include <memory>
#include <optional>
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

TEST(SafeData, IsLockedForAnActionButNotAtTheEndOfTheOldValue)
{
    SafeData<Locker, std::shared_ptr<void>> data;
    const auto isLocked = [&] {
        const auto tryToLock = [&] {
            const bool isFree = data.tryLock();
            if (isFree)
                data.unlock();
            return !isFree;
        };
        return std::async(std::launch::async, tryToLock).get();
    };
    EXPECT_TRUE(data.with([&](auto&) { return isLocked(); }));
    std::optional<bool> lockedAtTheEnd;
    data.set(std::shared_ptr<void>(nullptr, [&](void*) { lockedAtTheEnd = isLocked(); }));
    data.set(nullptr);
    EXPECT_EQ(lockedAtTheEnd, false);
}

TEST(Signal, ReleasesAllWhoWait)
{
    for (const bool reset : {false, true, true, true, true, true}) { // a few may run before the reset anyway
        Signal signal;
        EXPECT_FALSE(signal.wait(0));
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
