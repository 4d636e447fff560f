#include "io/IStreamFile.h"
#include "io/OStreamFile.h"
#include "io/OStreamNewFile.h"
#include "lib/err/ErrorCodes.h"
#include "lib/platform/Path.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <string>
#include <sys/stat.h>

namespace {

using namespace tessaly;
using io::IStreamFile;
using io::OStreamFile;
using io::OStreamNewFile;
using platform::Access;
using platform::Creation;
using platform::widePath;

/// Reads once, at most `count` bytes; "!" for a failure.
std::string readSome(IStreamFile<wchar_t>& stream, std::int64_t count)
{
    std::array<char, 64> buffer{};
    std::int64_t got = 0;
    return stream.read(buffer.data(), count, got) ? std::string(buffer.data(), static_cast<std::size_t>(got))
                                                  : "!";
}

mode_t modeOf(const std::string& path)
{
    struct stat info = {};
    return ::stat(path.c_str(), &info) == 0 ? info.st_mode & 07777U : 0;
}

class FileStream : public testing::Test
{
protected:
    std::wstring wide(std::string_view name) const { return widePath(folder / name); }

    test::TempFolder folder;
};

TEST_F(FileStream, ReadsUpToTheSizeAtOpening)
{
    test::writeFile(folder / "in", "0123456789");
    IStreamFile<wchar_t> in;
    EXPECT_FALSE(in.isAtStart());
    EXPECT_TRUE(in.isAtEnd());
    ASSERT_TRUE(in.open(wide("in")).ok());
    EXPECT_EQ(in.open(wide("in")), err::library(err::AlreadyOpen));
    EXPECT_EQ(in.size(), 10);
    EXPECT_TRUE(in.isAtStart());
    EXPECT_EQ(readSome(in, 4), "0123");
    EXPECT_FALSE(in.isAtStart() || in.isAtEnd());

    test::writeFile(folder / "in", "0123456789 and more");
    EXPECT_EQ(readSome(in, 60), "456789");
    EXPECT_TRUE(in.isAtEnd());
    EXPECT_EQ(readSome(in, 1), "!");
    EXPECT_TRUE(in.lastError().ok()) << "the end is no error";
}

TEST_F(FileStream, AShrunkenFileGivesNothingMore)
{
    test::writeFile(folder / "in", "0123456789");
    IStreamFile<wchar_t> in;
    ASSERT_TRUE(in.open(wide("in")).ok());
    std::filesystem::resize_file(folder / "in", 3);
    EXPECT_EQ(readSome(in, 10), "012");
    EXPECT_EQ(readSome(in, 10), "");
    EXPECT_FALSE(in.isAtEnd());
}

TEST_F(FileStream, ReadingRefusesAndReports)
{
    IStreamFile<wchar_t> in;
    EXPECT_EQ(in.open(L""), err::library(err::NullArgument));
    EXPECT_EQ(in.open(wide("absent")), err::system(ENOENT));
    EXPECT_EQ(in.open(wide("absent").append(1, L'\0')), err::system(ENOENT));
    EXPECT_EQ(readSome(in, 1), "!");
    EXPECT_EQ(in.lastError(), err::library(err::StreamClosed));
    EXPECT_EQ(readSome(in, 0), "");
    EXPECT_TRUE(in.lastError().ok());

    ASSERT_TRUE(in.open(wide(".")).ok());
    std::int64_t got = 0;
    EXPECT_FALSE(in.read(nullptr, 1, got));
    EXPECT_EQ(in.lastError(), err::library(err::NullArgument));
    EXPECT_EQ(readSome(in, 1), "!");
    EXPECT_EQ(in.lastError(), err::system(EISDIR));
}

TEST_F(FileStream, EmptyFilesAndFifosEndAtOnce)
{
    test::writeFile(folder / "empty", "");
    ASSERT_EQ(::mkfifo((folder / "fifo").c_str(), 0600), 0);
    for (const char* name : {"empty", "fifo"}) {
        IStreamFile<wchar_t> in;
        ASSERT_TRUE(in.open(wide(name)).ok());
        EXPECT_EQ(in.size(), 0);
        EXPECT_TRUE(in.isAtStart() && in.isAtEnd());
        EXPECT_EQ(readSome(in, 1), "!");
    }
    OStreamFile<wchar_t> out;
    ASSERT_TRUE(out.open(wide("fifo")).ok());
    EXPECT_EQ(out.write("x", 1), 0);
    EXPECT_EQ(out.lastError(), err::system(ESPIPE));
}

TEST_F(FileStream, WritingAppends)
{
    test::writeFile(folder / "out", "old ");
    OStreamFile<wchar_t> out;
    ASSERT_TRUE(out.open(wide("out")).ok());
    EXPECT_EQ(out.open(wide("out")), err::library(err::AlreadyOpen));
    EXPECT_EQ(out.write("new ", 4), 4);
    test::writeFile(folder / "out", "replaced ");
    EXPECT_EQ(out.write("again", 5), 5);
    EXPECT_EQ(out.write(nullptr, 5), 0);
    EXPECT_EQ(out.lastError(), err::library(err::NullArgument));
    EXPECT_EQ(out.write(nullptr, 0), 0);
    EXPECT_TRUE(out.lastError().ok());
    EXPECT_TRUE(out.finish().ok());
    EXPECT_EQ(test::readFile(folder / "out"), "replaced again");
    EXPECT_EQ(out.write("x", 1), 0);
    EXPECT_EQ(out.lastError(), err::library(err::StreamClosed));
    EXPECT_EQ(out.finish(), err::library(err::StreamClosed));
}

TEST_F(FileStream, AFullDiskIsAnErrorOfWriteAndOfFinish)
{
    OStreamFile<wchar_t> out;
    ASSERT_TRUE(out.open(L"/dev/full").ok());
    EXPECT_EQ(out.write("x", 1), 0);
    EXPECT_EQ(out.lastError(), err::system(ENOSPC));
    EXPECT_EQ(out.finish(), err::system(EINVAL)) << "the device can't promise that data stays";
}

TEST_F(FileStream, ANewFileReplacesNothing)
{
    test::writeFile(folder / "file", "precious");
    std::filesystem::create_symlink(folder / "nowhere", folder / "link");
    for (const char* name : {"file", "link", "."}) {
        OStreamNewFile out(wide(name), Access::Default);
        EXPECT_EQ(out.write("x", 1), 0);
        EXPECT_EQ(out.lastError(), err::system(EEXIST)) << name;
        EXPECT_EQ(out.finish(), err::system(EEXIST)) << name;
        EXPECT_FALSE(out.isCreated());
    }
    EXPECT_EQ(test::readFile(folder / "file"), "precious");
    EXPECT_FALSE(std::filesystem::exists(folder / "nowhere"));
}

TEST_F(FileStream, ANewFileAppearsWithItsFirstBytesOrAtTheEnd)
{
    OStreamNewFile out(wide("out"), Access::Default);
    EXPECT_FALSE(out.isCreated() || std::filesystem::exists(folder / "out"));
    EXPECT_EQ(out.write("data", 4), 4);
    EXPECT_TRUE(out.created().sameFile(platform::fileStatus(wide("out"))));
    EXPECT_TRUE(out.finish().ok());
    EXPECT_EQ(test::readFile(folder / "out"), "data");

    OStreamNewFile empty(wide("empty"), Access::Default);
    EXPECT_TRUE(empty.finish().ok());
    EXPECT_EQ(platform::fileStatus(wide("empty")).size, 0);
}

TEST_F(FileStream, PrivateFilesAreTheOwnersAlone)
{
    const mode_t before = ::umask(0);
    for (const mode_t mask : {0000U, 0022U, 0077U}) {
        ::umask(mask);
        OStreamNewFile secret(wide("private" + std::to_string(mask)), Access::Private);
        OStreamNewFile common(wide("common" + std::to_string(mask)), Access::Default);
        ASSERT_TRUE(secret.finish().ok() && common.finish().ok());
        EXPECT_EQ(modeOf(folder / ("private" + std::to_string(mask))), 0600U);
        EXPECT_EQ(modeOf(folder / ("common" + std::to_string(mask))), 0666U & ~mask);
    }
    ::umask(before);
}

TEST_F(FileStream, NamesThatAreNotUtf8Work)
{
    OStreamNewFile out(wide("caf\xE9 \xF0\x9F\x94\x91"), Access::Default);
    EXPECT_EQ(out.write("x", 1), 1);
    EXPECT_EQ(test::readFile(folder / "caf\xE9 \xF0\x9F\x94\x91"), "x");
}

} // namespace
