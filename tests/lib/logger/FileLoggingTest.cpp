#include "lib/logger/FileLogging.h"
#include "lib/logger/Log.h"
#include "support/Environment.h"
#include "support/Eventually.h"
#include "support/NewThreads.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

using namespace tessaly::logger;
using Lines = std::vector<std::string>;

/// The file's levels and messages, once there are that many.
Lines logged(const std::string& path, std::size_t count)
{
    Lines lines;
    EXPECT_TRUE(test::eventually([&] { return (lines = test::readLines(path)).size() >= count; }));
    for (std::string& line : lines)
        line = line.substr(26, 7) + line.substr(line.find(" [mainwindow] ") + 13);
    return lines;
}

TEST(FileLogging, SwitchesLevelAndFileWhileRunning)
{
    const test::TempFolder folder;
    const test::Environment state("XDG_STATE_HOME", (folder / "state").c_str());
    {
        FileLogging logging;
        EXPECT_EQ(logging.path(), folder / "state/quillet/quillet.log");
        logging.setLevel(Trace);
        log(Error, "mainwindow") << "before the file";
        logging.setLogFileUsed(true);
        EXPECT_TRUE(logging.isLogFileUsed());
        log(Debug, "mainwindow") << "heard";
        logging.setLevel(Information);
        log(Debug, "mainwindow") << "too fine";
        log(Information, "mainwindow") << "fine";
        Lines expected = {"[TRACE] File logger was started.", "[DEBUG] heard", "[INFRM] fine"};
        EXPECT_EQ(logged(logging.path(), 3), expected);

        logging.setLogFileUsed(false);
        log(Error, "mainwindow") << "while off";
        logging.setLogFileUsed(true);
        log(Error, "mainwindow") << "on again";
        expected.push_back("[ERROR] on again");
        EXPECT_EQ(logged(logging.path(), 4), expected);
    }
    EXPECT_EQ(internal::LogSender<char>::instance()->level(), 0U);
}

class Messages final : public internal::LogAppender<char>
{
public:
    void append(std::int64_t, std::uint32_t, std::uint32_t, std::uint32_t, std::string_view,
                std::string_view message, std::uint32_t) override
    {
        lines.emplace_back(message);
    }

    Lines lines;
};

TEST(FileLogging, TellsWhyThereIsNoLogFile)
{
    const test::TempFolder folder;
    FileLogging nowhere("");
    nowhere.setLogFileUsed(true);
    EXPECT_FALSE(nowhere.isLogFileUsed());
    EXPECT_EQ(nowhere.problem(), "Failed to create file logger.");
    nowhere.setLogFileUsed(false);
    EXPECT_EQ(nowhere.problem(), "");

    auto& sender = *internal::LogSender<char>::instance();
    sender.setLevel(Trace);
    FileLogging logging(folder / "log",
                        [](tessaly::ResultCode result) { return "number " + std::to_string(result.code); });
    EXPECT_EQ(sender.level(), 0U) << "nothing is logged until somebody wants it";
    logging.setLevel(Error);
    const auto elsewhere = std::make_shared<Messages>();
    EXPECT_TRUE(sender.appenders().add(7, elsewhere).ok());
    {
        const test::NewThreads none([] { return false; });
        logging.setLogFileUsed(true);
    }
    EXPECT_FALSE(logging.isLogFileUsed());
    EXPECT_EQ(logging.problem(), "Failed to start file logger. Error: number 303");
    EXPECT_EQ(elsewhere->lines, Lines{logging.problem()});
    EXPECT_TRUE(sender.appenders().add(1, elsewhere).ok());
    logging.setLogFileUsed(true);
    EXPECT_EQ(logging.problem(), "Failed to add file logger. Error: number 8");
    sender.appenders().remove(1);
    sender.appenders().remove(7);
    logging.setLogFileUsed(true);
    EXPECT_TRUE(logging.isLogFileUsed());
    EXPECT_EQ(logging.problem(), "");
}

TEST(FileLogging, HasNoDefaultPathWithoutAHome)
{
    constexpr uid_t Nobody = 54321; // without an entry among the users, where the test may change to it
    const auto pathOfNobody = [] {
        ::unsetenv("XDG_STATE_HOME");
        ::unsetenv("HOME");
        const bool changed = ::setuid(Nobody) == 0;
        std::_Exit(!changed || FileLogging::defaultPath().empty() ? 0 : 1);
    };
    EXPECT_EXIT(pathOfNobody(), testing::ExitedWithCode(0), "");
}

} // namespace
