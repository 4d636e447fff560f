#include "ui/Widgets.h"
#include "ui/disk/CDiskWork.h"

#include <optional>
#include <thread>

namespace {

using namespace std::chrono_literals;

bool isReady(const std::shared_future<int>& answer)
{
    return answer.wait_for(0ms) == std::future_status::ready;
}

TEST(DiskWork, WaitsForTheAnswerThatIsMeantAndTellsNoneBeforeItIsThere)
{
    CDiskWork disk;
    std::promise<void> gate;
    const auto late = disk.start<int>([open = gate.get_future().share()] {
        open.wait();
        return 2;
    });
    int told = 0;
    std::shared_future<int> early;
    QObject::connect(&disk, &CDiskWork::notifyAnswered, [&] {
        EXPECT_TRUE(isReady(++told == 1 ? early : late));
        if (told == 1)
            QTimer::singleShot(0, [&gate] { gate.set_value(); });
    });
    EXPECT_FALSE(CDiskWork::waitBriefly(late));
    QCoreApplication::processEvents();
    EXPECT_EQ(told, 0);
    early = disk.start<int>([] { return 1; });
    EXPECT_TRUE(disk.wait(late));
    EXPECT_EQ(late.get() * 10 + early.get(), 21);
    EXPECT_TRUE(comesTrue([&told] { return told == 2; }));
}

TEST(DiskWork, LosesNoAnswerOfManyShortOnes)
{
    CDiskWork disk;
    for (int i = 0; i < 500; ++i) {
        const auto first = disk.start<int>([i] { return i; });
        const auto second = disk.start<int>([i] { return i; });
        ASSERT_TRUE(disk.wait(first) && disk.wait(second));
        ASSERT_EQ(first.get() + second.get(), 2 * i);
    }
}

TEST(DiskWork, GivesWhatIsUnderWayAMomentAtTheEnd)
{
    std::optional<CDiskWork> disk(std::in_place);
    const auto answer = disk->start<int>([] {
        std::this_thread::sleep_for(50ms);
        return 1;
    });
    disk.reset();
    EXPECT_TRUE(isReady(answer));
}

} // namespace
