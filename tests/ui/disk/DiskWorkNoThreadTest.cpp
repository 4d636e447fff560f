#include "support/NewThreads.h"
#include "ui/Widgets.h"
#include "ui/disk/CDiskWork.h"

#include <new>

namespace {

using namespace std::chrono_literals;

TEST(DiskWork, AnswersWithoutAThreadAndAfterAnException)
{
    CDiskWork disk;
    int told = 0;
    QObject::connect(&disk, &CDiskWork::notifyAnswered, [&told] { ++told; });
    const auto failed = disk.start<int>([]() -> int { throw std::bad_alloc(); });
    ASSERT_TRUE(disk.wait(failed));
    EXPECT_EQ(failed.get(), 0);
    const test::NewThreads none([] { return false; });
    const auto answer = disk.start<int>([] { return 7; });
    EXPECT_TRUE(answer.wait_for(0ms) == std::future_status::ready && answer.get() == 7);
    EXPECT_TRUE(comesTrue([&told] { return told == 2; }));
}

} // namespace
