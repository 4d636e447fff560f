#include "lib/logger/FileLogging.h"
#include "lib/logger/Log.h"
#include "lib/logger/LogAppenderUtf8File.h"
#include "support/Environment.h"
#include "support/Eventually.h"
#include "support/NewThreads.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace {

using namespace tessaly::logger;
using tessaly::logger::internal::LogSender;

TEST(FileLogging, SwitchesLevelAndFileWhileRunning)
{
    const test::TempFolder folder;
    const test::Environment state("XDG_STATE_HOME", (folder / "state").c_str());
    const std::string path = folder / "state/quillet/quillet.log";
    {
        FileLogging logging;
        EXPECT_EQ(logging.path(), path);
        logging.setLevel(Trace);
        log(Error, "mainwindow") << "before the file";
        logging.setLogFileUsed(true);
        EXPECT_TRUE(logging.isLogFileUsed());
        log(Debug, "mainwindow") << "heard";
        logging.setLevel(Information);
        log(Debug, "mainwindow") << "too fine";
        log(Information, "mainwindow") << "fine";
        EXPECT_TRUE(test::eventually([&] { return test::readLines(path).size() >= 3; }));
        logging.setLogFileUsed(false);
        log(Error, "mainwindow") << "while off";
        logging.setLogFileUsed(true);
        log(Error, "mainwindow") << "on again";
        EXPECT_TRUE(test::eventually([&] { return test::readLines(path).size() >= 4; }));
    }
    std::string logged; // levels and messages
    for (const std::string& line : test::readLines(path))
        logged += line.substr(27, 5) + line.substr(line.find(" [mainwindow] ") + 13) + ", ";
    EXPECT_EQ(logged, "TRACE File logger was started., DEBUG heard, INFRM fine, ERROR on again, ");
    EXPECT_EQ(LogSender<char>::instance()->level(), 0U);
}

TEST(FileLogging, TellsWhyThereIsNoLogFile)
{
    const test::TempFolder folder;
    FileLogging nowhere("");
    nowhere.setLogFileUsed(true);
    EXPECT_FALSE(nowhere.isLogFileUsed());
    EXPECT_EQ(nowhere.problem(), "Failed to create file logger.");
    nowhere.setLogFileUsed(false);
    EXPECT_EQ(nowhere.problem(), "");

    auto& sender = *LogSender<char>::instance();
    sender.setLevel(Trace);
    FileLogging logging(folder / "log",
                        [](tessaly::ResultCode result) { return "number " + std::to_string(result.code); });
    EXPECT_EQ(sender.level(), 0U) << "nothing is logged until somebody wants it";
    logging.setLevel(Error);
    const auto elsewhere = std::make_shared<LogAppenderUtf8File>(7, folder / "elsewhere");
    EXPECT_TRUE(elsewhere->start().ok() && sender.appenders().add(7, elsewhere).ok());
    {
        const test::NewThreads none([] { return false; });
        logging.setLogFileUsed(true);
    }
    EXPECT_FALSE(logging.isLogFileUsed());
    EXPECT_EQ(logging.problem(), "Failed to start file logger. Error: number 303");
    EXPECT_TRUE(test::eventually(
        [&] { return test::readFile(folder / "elsewhere").ends_with("] " + logging.problem() + '\n'); }));
    EXPECT_TRUE(sender.appenders().add(1, elsewhere).ok());
    logging.setLogFileUsed(true);
    EXPECT_EQ(logging.problem(), "Failed to add file logger. Error: number 8");
    sender.appenders().remove(1);
    sender.appenders().remove(7);
    logging.setLogFileUsed(true);
    EXPECT_TRUE(logging.isLogFileUsed());
    EXPECT_EQ(logging.problem(), "");
}

} // namespace
