#include "lib/logger/LogAppenderUtf8File.h"
#include "support/Eventually.h"
#include "support/SystemCall.h"
#include "support/TempFolder.h"
#include "support/Walk.h"

#include <optional>

namespace {

using std::string;
using tessaly::logger::LogAppenderUtf8File;
using tessaly::platform::LogFile;
using test::eventually;
namespace fs = std::filesystem;

const string Head = "[2024.03.05 14:07:09:042] [INFRM] [00001] [00002] [s] ";

void append(LogAppenderUtf8File& appender, std::string_view message)
{
    appender.append(133541212290420000, 1, 2, 4, "s", message, 0);
}

/// In the table, ">" stands for the head of a line.
TEST(LogAppenderUtf8File, WritesItsLinesWhateverBecomesOfItsFile)
{
    const test::TempFolder folder;
    std::optional<LogAppenderUtf8File> appender;
    string path;
    const auto create = [&](const string& name) {
        path = folder / name;
        appender.emplace(1, path);
    };
    const auto appendMany = [&](const string& message) {
        for (int i = 0; i < 10001; ++i)
            append(*appender, message);
    };
    const auto inTime = [](const std::function<bool()>& condition) {
        const auto start = std::chrono::steady_clock::now();
        EXPECT_TRUE(eventually(condition));
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(8)) << "it slept first";
    };
    const auto isWritten = [&](const string& message) {
        inTime([&] { return test::readFile(path).ends_with(Head + message + '\n'); });
    };
    const auto lines = [&] {
        string text;
        for (const string& line : test::readLines(path))
            text += (line.starts_with(Head) ? '>' + line.substr(Head.size()) : line) + '|';
        return text;
    };
    const auto replace = [&](const string& name) {
        fs::rename(folder.write("other", "of another program\n"), folder / name);
    };
    const auto isForItsOwner = [&](const string& name) {
        const auto access = fs::status(folder / name).permissions();
        return access == fs::perms(0600) || access == fs::perms(0700) ? "alone" : "and others";
    };
    test::walk("log_file.txt",
               {{"appender", create},
                {"start", [&] { return test::told(appender->start()); }},
                {"stop", [&] { appender->stop(); }},
                {"append", [&](const string& message) { append(*appender, message); }},
                {"append 10001", appendMany},
                {"pending", [&] { return std::to_string(appender->pendingLines()); }},
                {"taken", [&] { inTime([&] { return appender->pendingLines() == 0; }); }},
                {"written", isWritten},
                {"file", lines},
                {"limit", [&](const string& line) { appender->setMaxSize(std::ssize(Head + line + '\n')); }},
                {"put", [&](const string& name) { folder.write(name, Head + "of an older run\n"); }},
                {"replace", replace},
                {"remove", [&](const string& name) { fs::remove(folder / name); }},
                {"for its owner", isForItsOwner}});
}

TEST(LogFile, BeginsALineOfItsOwnAfterATornOne)
{
    const test::TempFolder folder;
    folder.write("log", "of a run that ended here");
    const auto file = LogFile::open(folder / "log", LogFile::Mode::Append);
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
    EXPECT_EQ(test::readFile(folder / "log"), "of a run that ended here\nfirst\nt\nsecond\nthird\n");
}

} // namespace
