#include "lib/logger/FileLogging.h"
#include "lib/logger/Clock.h"
#include "lib/logger/Log.h"
#include "support/Environment.h"
#include "support/Eventually.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace tessaly::logger;
using Lines = std::vector<std::string>;

/// The file's lines without their process and thread columns, once there are that many.
Lines logged(const std::string& path, std::size_t count)
{
    Lines lines;
    EXPECT_TRUE(test::eventually([&] { return (lines = test::readLines(path)).size() >= count; }));
    for (std::string& line : lines)
        line.erase(33, line.find(" [mainwindow]") - 33);
    return lines;
}

TEST(FileLogging, SwitchesLevelAndFileWhileRunning)
{
    setClock([]() -> std::int64_t { return 133541212290420000; });
    const test::TempFolder folder;
    const test::Environment state("XDG_STATE_HOME", (folder / "state").c_str());
    const std::string start = "[2024.03.05 14:07:09:042] ";
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
        Lines expected = {start + "[TRACE] [mainwindow] File logger was started.",
                          start + "[DEBUG] [mainwindow] heard", start + "[INFRM] [mainwindow] fine"};
        EXPECT_EQ(logged(logging.path(), 3), expected);

        logging.setLogFileUsed(false);
        log(Error, "mainwindow") << "while off";
        logging.setLogFileUsed(true);
        log(Error, "mainwindow") << "on again";
        expected.push_back(start + "[ERROR] [mainwindow] on again");
        EXPECT_EQ(logged(logging.path(), 4), expected);
    }
    EXPECT_EQ(internal::LogSender<char>::instance()->level(), 0U);
    setClock(nullptr);
}

} // namespace
