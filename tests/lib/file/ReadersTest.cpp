#include "lib/err/ErrorCodes.h"
#include "lib/file/Utf8FileReader.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <sys/stat.h>
#include <utility>

namespace {

using namespace tessaly;
using file::Utf8FileReader;
using Lines = std::vector<std::string>;

TEST(Utf8FileReader, ReadsByLinesOrWhole)
{
    const test::TempFolder folder;
    const std::string block(64 * 1024 - 1, 'x'); // a line end as the last byte of a read, and around it
    const std::pair<std::string, Lines> rows[] = {
        {"", {}},
        {"a\n\nb\r\n", {"a", "", "b"}},
        {std::string("a\0b\n", 4), {std::string("a\0b", 3)}},
        {"\xEF\xBB\xBF", {}},
        {"\xEF\xBB\xBF\xEF\xBB\xBFz", {"\xEF\xBB\xBFz"}},
        {block + "\nb", {block, "b"}},
        {block + "y\nb", {block + "y", "b"}},
        {block + "yz" + block + "\n", {block + "yz" + block}},
    };
    for (const auto& [text, lines] : rows) {
        Lines read;
        const auto sink = [&](const std::string& line) { read.push_back(line); };
        EXPECT_TRUE(Utf8FileReader().readLines(folder.write("text", text), sink).ok());
        EXPECT_EQ(read, lines) << text.substr(0, 20);
    }
    std::string text;
    const std::wstring path = folder.write("\xC3\xA4.txt", "\xEF\xBB\xBFone\r\ntwo\nthree");
    ASSERT_TRUE(Utf8FileReader().read(path, text).ok());
    EXPECT_EQ(text, "one\r\ntwo\nthree");
}

TEST(Utf8FileReader, RefusesWhatIsNotAReadableTextFile)
{
    const test::TempFolder folder;
    ASSERT_EQ(mkfifo((folder / "fifo").c_str(), 0600), 0);
    const std::pair<std::wstring, ResultCode> rows[] = {
        {L"", err::library(err::NullArgument)},
        {folder.wide("missing"), err::system(ENOENT)},
        {folder.wide(), err::system(EISDIR)},
        {folder.wide("fifo"), err::library(err::OpenFileFailed)},
        {L"/dev/zero", err::library(err::OpenFileFailed)},
        {L"/proc/self/status", err::library(err::FileTooLarge)}, // longer than it says
        {folder.write("pastLimit", "123456789"), err::library(err::FileTooLarge)},
        {folder.write("atLimit", "12345678"), {}},
    };
    std::string text;
    for (const auto& [path, result] : rows) {
        text = "before";
        EXPECT_EQ(Utf8FileReader({8}).read(path, text), result) << platform::nativePath(path);
        EXPECT_EQ(text, result.ok() ? "12345678" : "");
    }
    // In several reads, which together are too much.
    const std::size_t size = test::readFile("/proc/version").size();
    EXPECT_EQ(Utf8FileReader({size - 2}).read(L"/proc/version", text), err::library(err::FileTooLarge));
    EXPECT_TRUE(Utf8FileReader({size}).read(L"/proc/version", text).ok());
}

} // namespace
