#include "app/job/ProgressText.h"
#include "app/job/ProgressTracker.h"

#include <gtest/gtest.h>

using namespace thisapp;

namespace {

constexpr std::int64_t MiB = 1024 * 1024;

TEST(ProgressTest, SaysEachTimeInTheUnitsThatItNeeds)
{
    const std::pair<std::int64_t, const char*> cases[] = {
        {59, "Remaining time: 59 seconds"},
        {60, "Remaining time: 1 minutes 0 seconds"},
        {3600, "Remaining time: 1 hours 0 minutes 0 seconds"},
        {90061, "Remaining time: 25 hours 1 minutes 1 seconds"},
    };
    for (const auto& [seconds, text] : cases)
        EXPECT_EQ(remainingTimeText(seconds), text);
    EXPECT_EQ(summaryText(MiB, 999), "1.0 MiB in less than a second");
    EXPECT_EQ(summaryText(MiB, 1000), "1.0 MiB in 1.0 seconds, 1.0 MiB/s");
}

TEST(ProgressTest, JoinsWhatIsKnown)
{
    ProgressTracker progress;
    progress.reset(100 * MiB, 5000);
    progress.reset(100 * MiB, 0);
    EXPECT_EQ(progressText(Operation::Decrypt, JobPhase::Processing, progress),
              "Decrypting. 0.000% processed");
    const std::tuple<int, JobPhase, const char*> reports[] = {
        {24, JobPhase::Processing, "Encrypting. 24.000% processed. Remaining time: 2 seconds"},
        {50, JobPhase::Processing, "Encrypting at 48.6 MiB/s. 50.000% processed. Remaining time: 2 seconds"},
        {100, JobPhase::Flushing, "Waiting until the disk has stored the file. 100.000% processed"},
    };
    std::int64_t now = 250;
    for (const auto& [done, phase, text] : reports) {
        progress.update(done * MiB, now *= 2);
        EXPECT_EQ(progressText(Operation::Encrypt, phase, progress), text);
    }
}

TEST(ProgressTest, SmoothsTheSpeed)
{
    ProgressTracker progress;
    progress.reset(1000 * MiB, 0);
    std::int64_t now = 0;
    for (std::int64_t done = 10; done <= 100; done += 10)
        progress.update(done * MiB, now += 1000);
    EXPECT_NEAR(*progress.bytesPerSecond(), 10.0 * MiB, 1.0);
    progress.update(140 * MiB, now += 1000); // one burst at four times the speed
    EXPECT_NEAR(*progress.bytesPerSecond(), 18.0 * MiB, 7.0 * MiB);
    const auto before = progress.bytesPerSecond();
    progress.update(140 * MiB + 1023, now += 1000);
    EXPECT_EQ(progress.bytesPerSecond(), before) << "too little for a sample";
    progress.update(130 * MiB, now += 1000); // a file that failed counts no longer
    progress.update(131 * MiB, now += 1000);
    EXPECT_NE(progress.bytesPerSecond(), before);
    EXPECT_EQ(progress.elapsedMs(), now);
}

TEST(ProgressTest, StaysInBoundsWhateverIsReported)
{
    ProgressTracker progress;
    EXPECT_FALSE(progress.remainingSeconds());
    progress.update(5, 0); // a job over nothing
    EXPECT_EQ(progress.percent(), 0.0F);
    progress.reset(4096, 10);
    EXPECT_EQ(progress.elapsedMs(), 0);
    progress.update(9000, 10); // beyond the end, in no time
    EXPECT_EQ(progress.percent(), 100.0F);
    EXPECT_FALSE(progress.bytesPerSecond());
}

} // namespace
