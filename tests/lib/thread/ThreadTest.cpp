#include "lib/thread/Thread.h"
#include "lib/err/ErrorCodes.h"
#include "lib/sync/Signal.h"
#include "support/NewThreads.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <optional>
#include <thread>

namespace {

using tessaly::ResultCode;
using tessaly::thread::Thread;
using tessaly::thread::WaitStatus;
namespace err = tessaly::err;

/// Waits for `go`, remembers its parameter and returns `answer`.
struct Job final : tessaly::thread::IRunnable
{
    ResultCode run(std::uint32_t, std::uintptr_t param) override
    {
        lastParam = param;
        return go.wait() ? answer : ResultCode{};
    }

    tessaly::sync::Signal go;
    ResultCode answer{5, 60};
    std::atomic<std::uintptr_t> lastParam = 0;
};

struct ThreadTest : testing::Test
{
    ThreadTest() { thread->setRunnable(&job); }

    Job job;
    std::optional<Thread> thread{std::in_place};
};

TEST_F(ThreadTest, WithoutRunnableOrJobOrThreadOrWithOneThatThrows)
{
    struct : tessaly::thread::IRunnable
    {
        ResultCode run(std::uint32_t, std::uintptr_t) override { throw 1; }
    } thrower;
    Thread idle;
    EXPECT_EQ(idle.start(), err::library(err::NoRunnable));
    EXPECT_EQ(idle.wait(0), WaitStatus::NoJob);
    EXPECT_EQ(idle.wait(), WaitStatus::NoJob);
    EXPECT_TRUE(idle.result().ok());
    idle.setRunnable(&thrower);
    {
        const test::NewThreads none([] { return false; });
        EXPECT_EQ(idle.start(), err::library(err::LaunchFailed));
    }
    EXPECT_FALSE(idle.isRunning());
    ASSERT_TRUE(idle.start().ok());
    idle.wait();
    EXPECT_FALSE(idle.isRunning());
    EXPECT_EQ(idle.result(), err::library(err::RunnableThrew));
}

TEST_F(ThreadTest, OneJobFromStartToResultAndAnother)
{
    ASSERT_TRUE(thread->start(42).ok());
    EXPECT_TRUE(thread->isRunning());
    EXPECT_EQ(thread->wait(0), WaitStatus::TimedOut);
    EXPECT_EQ(thread->start(), err::library(err::Busy));

    ASSERT_TRUE(job.go.set().ok());
    EXPECT_EQ(thread->wait(), WaitStatus::Finished);
    EXPECT_EQ(thread->wait(0), WaitStatus::Finished);
    EXPECT_EQ(thread->result(), job.answer);
    EXPECT_EQ(job.lastParam, 42U);

    ASSERT_TRUE(job.go.reset().ok());
    ASSERT_TRUE(thread->start().ok());
    EXPECT_TRUE(thread->result().ok()) << "a new start clears the old result";
    ASSERT_TRUE(job.go.set().ok());
    thread->wait();
    EXPECT_EQ(job.lastParam, 0U);
}

/// Whoever sees that a job runs can wait for it, from its first instruction on.
TEST_F(ThreadTest, AJobIsTheOneThatIsWaitedForWhenItBegins)
{
    struct Waiter final : tessaly::thread::IRunnable
    {
        ResultCode run(std::uint32_t, std::uintptr_t) override
        {
            seen = own->wait(0);
            return {};
        }
        Thread* own = nullptr;
        WaitStatus seen = WaitStatus::NoJob;
    } waiter;
    waiter.own = &*thread;
    thread->setRunnable(&waiter);
    for (int round = 0; round < 1000; ++round) {
        ASSERT_TRUE(thread->start().ok());
        thread->wait();
        ASSERT_EQ(waiter.seen, WaitStatus::TimedOut) << round;
    }
}

TEST_F(ThreadTest, EndsWithItsJobThoughAnotherThreadWaitsForItToo)
{
    ASSERT_TRUE(thread->start().ok());
    std::thread other([&] { thread->wait(); });
    std::this_thread::sleep_for(std::chrono::milliseconds(20)); // until the other one has its handle
    std::atomic<bool> told = false;
    std::thread teller([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        told = true;
        ASSERT_TRUE(job.go.set().ok());
    });
    thread.reset();
    EXPECT_TRUE(told);
    teller.join();
    other.join();
}

TEST_F(ThreadTest, ConcurrentStartsLaunchOneJob)
{
    for (int round = 0; round < 500; ++round) {
        ASSERT_TRUE(job.go.reset().ok());
        ResultCode results[2];
        std::thread other([&] { results[0] = thread->start(); });
        results[1] = thread->start();
        other.join();
        ASSERT_TRUE(job.go.set().ok());
        ASSERT_NE(results[0].ok(), results[1].ok());
        ASSERT_EQ(results[results[0].ok() ? 1 : 0], err::library(err::Busy));
        thread->wait();
    }
}

} // namespace
