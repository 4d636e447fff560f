#include "lib/logger/LogAppenderUtf8File.h"
#include "support/Eventually.h"
#include "support/SystemCall.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <map>
#include <thread>

namespace {

using tessaly::logger::LogAppenderUtf8File;
using test::eventually;
namespace fs = std::filesystem;

class LogAppenderUtf8FileTest : public testing::Test
{
protected:
    static void append(LogAppenderUtf8File& appender, std::string_view message)
    {
        appender.append(0, 1, 2, 4, "s", message, 0);
    }
    static std::string line(const std::string& message)
    {
        return "[INFRM] [00001] [00002] [s] " + message + "\n";
    }
    /// Appends and waits until the file ends with the line.
    void write(LogAppenderUtf8File& appender, const std::string& message) const
    {
        append(appender, message);
        EXPECT_TRUE(eventually([&] { return test::readFile(path).ends_with(line(message)); })) << message;
    }

    test::TempFolder folder;
    std::string path = folder / "a/b/q.log";
};

TEST_F(LogAppenderUtf8FileTest, CreatesFolderAndFileForTheUserAlone)
{
    LogAppenderUtf8File appender(1, path);
    ASSERT_TRUE(appender.start().ok());
    EXPECT_FALSE(fs::exists(folder / "a")) << "nothing before the first line";
    appender.append(133541212290420000, 4312, 988, 4, "mainwindow", "text", 0);
    append(appender, "two\nlines, \xFF and \u65E5\u672C");
    write(appender, "third");
    EXPECT_EQ(test::readFile(path), "[2024.03.05 14:07:09:042] [INFRM] [04312] [00988] [mainwindow] text\n" +
                                        line("two\\nlines, \\xFF and \u65E5\u672C") + line("third"));
    EXPECT_EQ(fs::status(path).permissions(), fs::perms(0600));
    EXPECT_EQ(fs::status(folder / "a").permissions(), fs::perms(0700));
}

TEST_F(LogAppenderUtf8FileTest, BoundsItsQueueAndDiscardsItAtTheStop)
{
    LogAppenderUtf8File appender(1, path);
    for (int i = 1; i <= 10001; ++i)
        append(appender, "discarded");
    EXPECT_EQ(appender.pendingLines(), 10000U);
    appender.stop();
    append(appender, "dropped");
    EXPECT_EQ(appender.pendingLines(), 0U);
    for (const char* message : {"first", "second"}) {
        ASSERT_TRUE(appender.start().ok());
        write(appender, message);
        appender.stop();
    }
    EXPECT_EQ(test::readFile(path), line("first") + line("second"));
}

TEST_F(LogAppenderUtf8FileTest, StartsAfreshPastTheLimitOrWithoutItsFile)
{
    folder.write("log", line("of an older run"));
    path = folder / "log";
    LogAppenderUtf8File appender(1, path);
    appender.setMaxSize(static_cast<std::int64_t>(line("0").size()));
    append(appender, "0");
    const auto start = std::chrono::steady_clock::now();
    ASSERT_TRUE(appender.start().ok());
    ASSERT_TRUE(eventually([&] { return test::readFile(path) == line("0"); }));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(8)) << "it slept first";
    write(appender, "1");
    EXPECT_EQ(test::readFile(path), line("0") + line("1")) << "a file of the limit goes on";
    write(appender, "2");
    EXPECT_EQ(test::readFile(path), line("2"));
    fs::remove(path);
    write(appender, "3");
    EXPECT_EQ(test::readFile(path), line("3"));
}

TEST_F(LogAppenderUtf8FileTest, LivesWithoutAFile)
{
    folder.write("a", "a file where the folder should be");
    for (const std::string& bad : {folder / "", std::string("/dev/full"), std::string(), path}) {
        LogAppenderUtf8File appender(1, bad);
        ASSERT_TRUE(appender.start().ok());
        // The second line is taken only when the writer has given up the first.
        for (const char* message : {"lost", "lost too"}) {
            append(appender, message);
            ASSERT_TRUE(eventually([&] { return appender.pendingLines() == 0; })) << bad;
        }
        if (bad == path) {
            fs::remove(folder / "a");
            write(appender, "found");
        }
    }
}

TEST_F(LogAppenderUtf8FileTest, BeginsALineOfItsOwnAfterATornOne)
{
    using tessaly::platform::LogFile;
    const std::string log = folder / "log";
    folder.write("log", "of a run that ended here");
    const auto file = LogFile::open(log, LogFile::Mode::Append);
    {
        const test::SystemCall interrupted("write", EINTR);
        const test::SystemCall shortWrite("write", test::SystemCall::Short, 2);
        ASSERT_TRUE(file->write("first\n"));
    }
    {
        const test::SystemCall shortWrite("write", test::SystemCall::Short);
        const test::SystemCall full("write", ENOSPC, 2), stillFull("write", ENOSPC, 3);
        EXPECT_FALSE(file->write("torn off\n"));
        EXPECT_FALSE(file->write("lost\n"));
    }
    EXPECT_TRUE(file->write("second\n"));
    EXPECT_TRUE(file->write("third\n"));
    EXPECT_EQ(test::readFile(log), "of a run that ended here\nfirst\nt\nsecond\nthird\n");
}

TEST_F(LogAppenderUtf8FileTest, EveryLineOfFourThreadsAndTwoAppendersIsWhole)
{
    constexpr int PerThread = 1000;
    const std::string tail(200, '#');
    LogAppenderUtf8File appenders[] = {{1, path}, {2, path}};
    for (auto& appender : appenders)
        ASSERT_TRUE(appender.start().ok());
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&, t] {
            for (int i = 0; i < PerThread; ++i)
                append(appenders[t % 2], std::to_string(t) + " " + std::to_string(i) + tail);
        });
    for (auto& thread : threads)
        thread.join();

    ASSERT_TRUE(eventually([&] { return test::readLines(path).size() == 4 * PerThread; }));
    std::map<char, int> next;
    for (const std::string& text : test::readLines(path)) {
        const char thread = text.at(line("").size() - 1);
        ASSERT_EQ(text + "\n", line(std::string{thread} + " " + std::to_string(next[thread]++) + tail));
    }
}

} // namespace
