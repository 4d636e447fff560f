#include "io/IStreamFile.h"
#include "io/OStreamNewFile.h"
#include "lib/err/ErrorCodes.h"
#include "lib/platform/Path.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <sys/stat.h>

namespace {

using namespace tessaly;
using io::OStreamNewFile;
using platform::Access;
using InFile = io::IStreamFile<wchar_t>;
using OutFile = io::OStreamFile<wchar_t>;
namespace fs = std::filesystem;

/// Reads once, at most `count` bytes; "!" for a failure.
std::string readSome(InFile& stream, std::int64_t count)
{
    std::array<char, 64> buffer{};
    std::int64_t got = 0;
    const bool done = stream.read(buffer.data(), count, got);
    return done ? std::string(buffer.data(), static_cast<std::size_t>(got)) : "!";
}

class FileStream : public testing::Test
{
protected:
    std::wstring wide(std::string_view name) const { return platform::widePath(folder / name); }

    test::TempFolder folder;
};

TEST_F(FileStream, ReadsUpToTheSizeAtOpening)
{
    test::writeFile(folder / "in", "0123456789");
    InFile in;
    EXPECT_TRUE(!in.isAtStart() && in.isAtEnd());
    ASSERT_TRUE(in.open(wide("in")).ok());
    EXPECT_EQ(in.open(wide("in")), err::library(err::AlreadyOpen));
    EXPECT_EQ(in.size(), 10);
    EXPECT_TRUE(in.isAtStart());
    EXPECT_EQ(readSome(in, 4), "0123");
    EXPECT_FALSE(in.isAtStart() || in.isAtEnd());
    test::writeFile(folder / "in", "0123456789 and more");
    EXPECT_EQ(readSome(in, 3), "456");
    fs::resize_file(folder / "in", 8);
    EXPECT_EQ(readSome(in, 60), "7");
    EXPECT_EQ(readSome(in, 60), "") << "it shrank";
    EXPECT_FALSE(in.isAtEnd());
    test::writeFile(folder / "in", "0123456789 and more");
    EXPECT_EQ(readSome(in, 60), "89");
    EXPECT_TRUE(in.isAtEnd());
    EXPECT_EQ(readSome(in, 1), "!");
    EXPECT_TRUE(in.lastError().ok()) << "the end is no error";
}

TEST_F(FileStream, ReadingRefusesAndReports)
{
    InFile in;
    EXPECT_EQ(in.open(L""), err::library(err::NullArgument));
    EXPECT_EQ(in.open(wide("absent")), err::system(ENOENT));
    EXPECT_EQ(in.open(wide(".").append(1, L'\0')), err::system(ENOENT));
    EXPECT_EQ(in.open(L"/proc/self/status"), err::library(err::GetFileSizeFailed));
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
        InFile in;
        ASSERT_TRUE(in.open(wide(name)).ok());
        EXPECT_TRUE(in.size() == 0 && in.isAtStart() && in.isAtEnd());
        EXPECT_EQ(readSome(in, 1), "!");
    }
    OutFile out;
    ASSERT_TRUE(out.open(wide("fifo")).ok());
    EXPECT_EQ(out.write("x", 1), 0);
    EXPECT_EQ(out.lastError(), err::system(ESPIPE));
}

TEST_F(FileStream, WritingAppends)
{
    test::writeFile(folder / "out", "old ");
    OutFile out;
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
    OutFile out;
    ASSERT_TRUE(out.open(L"/dev/full").ok());
    EXPECT_EQ(out.write("x", 1), 0);
    EXPECT_EQ(out.lastError(), err::system(ENOSPC));
    EXPECT_EQ(out.finish(), err::system(EINVAL)) << "the device can't promise that data stays";
}

TEST_F(FileStream, ANewFileReplacesNothing)
{
    test::writeFile(folder / "file", "precious");
    fs::create_symlink(folder / "nowhere", folder / "link");
    for (const char* name : {"file", "link", "."}) {
        OStreamNewFile out(wide(name), Access::Default);
        EXPECT_EQ(out.write("x", 1), 0);
        EXPECT_EQ(out.lastError(), err::system(EEXIST)) << name;
        if (fs::is_symlink(folder / name))
            fs::remove(folder / name); // once refused, it is not tried again
        EXPECT_EQ(out.finish(), err::system(EEXIST)) << name;
        EXPECT_FALSE(out.isCreated());
    }
    EXPECT_EQ(test::readFile(folder / "file"), "precious");
    EXPECT_FALSE(fs::exists(folder / "nowhere"));
}

TEST_F(FileStream, ANewFileAppearsWithItsFirstBytesOrAtTheEnd)
{
    const char* name = "caf\xE9 \xF0\x9F\x94\x91"; // \xE9 is no UTF-8
    OStreamNewFile out(wide(name), Access::Default);
    EXPECT_FALSE(out.isCreated() || fs::exists(folder / name));
    EXPECT_EQ(out.write("data", 4), 4);
    EXPECT_TRUE(out.created().sameFile(platform::fileStatus(wide(name))));
    EXPECT_TRUE(out.finish().ok());
    EXPECT_EQ(test::readFile(folder / name), "data");

    const mode_t before = ::umask(0);
    for (const mode_t mask : {0000U, 0027U}) {
        ::umask(mask);
        for (const Access access : {Access::Private, Access::Default}) {
            OStreamNewFile empty(wide("empty"), access);
            EXPECT_TRUE(empty.finish().ok());
            EXPECT_EQ(fs::status(folder / "empty").permissions(),
                      fs::perms(access == Access::Private ? 0600U : 0666U & ~mask));
            fs::remove(folder / "empty");
        }
    }
    ::umask(before);
}

} // namespace
