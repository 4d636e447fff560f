#include "io/IStreamFile.h"
#include "io/OStreamFile.h"
#include "lib/err/ErrorCodes.h"
#include "lib/platform/Path.h"
#include "support/SystemCall.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <sys/stat.h>

namespace {

using namespace tessaly;
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
    test::TempFolder folder;
};

TEST_F(FileStream, ReadsUpToTheSizeAtOpening)
{
    folder.write("in", "0123456789");
    InFile in;
    ASSERT_TRUE(in.open(folder.wide("in")).ok());
    EXPECT_EQ(in.size(), 10);
    EXPECT_TRUE(in.isAtStart());
    EXPECT_EQ(readSome(in, 4), "0123");
    EXPECT_FALSE(in.isAtStart() || in.isAtEnd());
    folder.write("in", "0123456789 and more");
    EXPECT_EQ(readSome(in, 3), "456");
    fs::resize_file(folder / "in", 8);
    EXPECT_EQ(readSome(in, 60), "7");
    EXPECT_EQ(readSome(in, 60), "") << "it shrank";
    EXPECT_FALSE(in.isAtEnd());
    folder.write("in", "0123456789 and more");
    EXPECT_EQ(readSome(in, 1), "8");
    EXPECT_FALSE(in.isAtEnd());
    EXPECT_EQ(readSome(in, 60), "9");
    EXPECT_TRUE(in.isAtEnd());
    EXPECT_EQ(readSome(in, 1), "!");
    EXPECT_TRUE(in.lastError().ok()) << "the end is no error";
    EXPECT_TRUE(in.rewind().ok() && in.isAtStart());
    {
        const test::SystemCall broken("read", EIO);
        EXPECT_EQ(readSome(in, 60), "!");
        EXPECT_EQ(in.lastError(), err::system(EIO));
    }
    const test::SystemCall interrupted("read", EINTR);
    EXPECT_EQ(readSome(in, 60), "0123456789");
    EXPECT_TRUE(in.lastError().ok());
    EXPECT_EQ(in.open(folder.wide("in")), err::library(err::AlreadyOpen));
}

TEST_F(FileStream, ReadingRefusesAndReports)
{
    InFile in;
    EXPECT_FALSE(in.rewind().ok());
    EXPECT_EQ(in.open(L""), err::library(err::NullArgument));
    EXPECT_EQ(in.open(folder.wide("absent")), err::system(ENOENT));
    EXPECT_EQ(in.open(folder.wide(".").append(1, L'\0')), err::system(ENOENT));
    EXPECT_EQ(in.open(L"/proc/self/status"), err::library(err::GetFileSizeFailed));
    EXPECT_EQ(readSome(in, 1), "!");
    EXPECT_EQ(in.lastError(), err::library(err::StreamClosed));
    ASSERT_EQ(::mkfifo((folder / "fifo").c_str(), 0600), 0);
    for (const std::wstring& irregular : {folder.wide("."), folder.wide("fifo"), std::wstring(L"/dev/null")})
        EXPECT_EQ(in.open(irregular), err::library(err::OpenFileFailed)) << "nothing counts as empty";
}

TEST_F(FileStream, WritingAppends)
{
    folder.write("out", "old ");
    OutFile out;
    ASSERT_TRUE(out.open(folder.wide("out")).ok());
    EXPECT_EQ(out.write("new ", 4), 4);
    folder.write("out", "replaced ");
    EXPECT_EQ(out.write("again", 5), 5);
    EXPECT_TRUE(out.flush().ok());
    {
        const test::SystemCall interrupted("close", EINTR);
        EXPECT_TRUE(out.close().ok());
    }
    EXPECT_EQ(test::readFile(folder / "out"), "replaced again");
    EXPECT_EQ(out.flush(), err::library(err::StreamClosed));
    EXPECT_EQ(out.open(L""), err::library(err::NullArgument));
    EXPECT_TRUE(out.open(folder.wide("out")).ok());
    const test::SystemCall broken("close", EIO);
    EXPECT_EQ(out.close(), err::system(EIO));
}

TEST_F(FileStream, AFullDiskIsAnErrorOfWriteAndOfFlush)
{
    OutFile out;
    ASSERT_TRUE(out.open(L"/dev/full").ok());
    EXPECT_EQ(out.write("x", 1), 0);
    EXPECT_EQ(out.lastError(), err::system(ENOSPC));
    EXPECT_EQ(out.open(folder.wide("other")), err::library(err::AlreadyOpen));
    EXPECT_EQ(out.flush(), err::system(EINVAL)) << "the device can't promise that data stays";
}

} // namespace
