#include "io/IStreamFile.h"
#include "io/OStreamNewFile.h"
#include "lib/err/ErrorCodes.h"
#include "lib/platform/Path.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>

namespace {

using namespace tessaly;
using io::OStreamNewFile;
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
    EXPECT_EQ(readSome(in, 60), "89");
    EXPECT_TRUE(in.isAtEnd());
    EXPECT_EQ(readSome(in, 1), "!");
    EXPECT_TRUE(in.lastError().ok()) << "the end is no error";
}

TEST_F(FileStream, ReadingRefusesAndReports)
{
    InFile in;
    EXPECT_EQ(in.open(L""), err::library(err::NullArgument));
    EXPECT_EQ(in.open(folder.wide("absent")), err::system(ENOENT));
    EXPECT_EQ(in.open(folder.wide(".").append(1, L'\0')), err::system(ENOENT));
    EXPECT_EQ(in.open(L"/proc/self/status"), err::library(err::GetFileSizeFailed));
    EXPECT_EQ(readSome(in, 1), "!");
    EXPECT_EQ(in.lastError(), err::library(err::StreamClosed));
    ASSERT_TRUE(in.open(folder.wide(".")).ok());
    EXPECT_EQ(readSome(in, 1), "!");
    EXPECT_EQ(in.lastError(), err::system(EISDIR));
}

TEST_F(FileStream, WritingAppends)
{
    folder.write("out", "old ");
    OutFile out;
    ASSERT_TRUE(out.open(folder.wide("out")).ok());
    EXPECT_EQ(out.write("new ", 4), 4);
    folder.write("out", "replaced ");
    EXPECT_EQ(out.write("again", 5), 5);
    EXPECT_TRUE(out.finish().ok());
    EXPECT_EQ(test::readFile(folder / "out"), "replaced again");
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

TEST_F(FileStream, ANewFileAppearsWithItsFirstBytes)
{
    const char* name = "caf\xE9 \xF0\x9F\x94\x91"; // \xE9 is no UTF-8
    OStreamNewFile out(folder.wide(name), platform::Access::Default);
    EXPECT_FALSE(out.isCreated() || fs::exists(folder / name));
    EXPECT_EQ(out.write("data", 4), 4);
    EXPECT_TRUE(out.created().sameFile(platform::fileStatus(folder.wide(name))));
    EXPECT_TRUE(out.finish().ok());
    EXPECT_EQ(test::readFile(folder / name), "data");
}

TEST_F(FileStream, ANewFileOnceRefusedIsNotTriedAgain)
{
    folder.write("taken", "precious");
    OStreamNewFile out(folder.wide("taken"), platform::Access::Default);
    EXPECT_EQ(out.write("x", 1), 0);
    EXPECT_EQ(out.lastError(), err::system(EEXIST));
    fs::remove(folder / "taken");
    EXPECT_EQ(out.finish(), err::system(EEXIST));
    EXPECT_FALSE(out.isCreated() || fs::exists(folder / "taken"));
}

} // namespace
