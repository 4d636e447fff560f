#include "io/OutputFile.h"
#include "io/PrivateFile.h"
#include "lib/err/ErrorCodes.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <sys/stat.h>

namespace {

using namespace tessaly;
using io::OutputFile;
using Existing = OutputFile::Existing;
namespace fs = std::filesystem;

class OutputFileTest : public testing::TestWithParam<OutputFile::Kind>
{
protected:
    void SetUp() override { fs::create_directory(folder / "dir"); }

    std::unique_ptr<OutputFile> begin(platform::Access access = platform::Access::ownerOnly())
    {
        const auto place = std::make_shared<io::FilePlace>();
        EXPECT_TRUE(place->open(folder.at("dir/out")).ok());
        auto file = std::make_unique<OutputFile>(GetParam());
        EXPECT_TRUE(file->open(place, access).ok());
        EXPECT_FALSE(file->isBegun());
        EXPECT_EQ(file->write("data", 4), 4);
        return file;
    }

    /// The files of a folder with their contents.
    std::set<std::string> files(const char* name)
    {
        std::set<std::string> found;
        for (const auto& entry : fs::directory_iterator(folder / name))
            found.insert(entry.path().filename().string() + "=" + test::readFile(entry.path()));
        return found;
    }

    test::TempFolder folder;
};

/// What is done to the folder before the commit, and what it then holds.
TEST_P(OutputFileTest, AppearsWholeOrNotAtAll)
{
    using Files = std::set<std::string>;
    const auto put = [this](const char* content) { folder.write("dir/out", content); };
    const struct
    {
        const char* name;
        std::function<void()> before;
        Existing existing;
        bool isWanted;
        ResultCode result;
        const char* folder;
        Files left;
    } rows[] = {
        {"new", [] {}, Existing::Keep, true, {}, "dir", {"out=data"}},
        {"new, replacing", [] {}, Existing::Replace, true, {}, "dir", {"out=data"}},
        {"not wanted", [] {}, Existing::Keep, false, err::library(err::OperationStopped), "dir", {}},
        {"kept", [&] { put("old"); }, Existing::Keep, true, err::system(EEXIST), "dir", {"out=old"}},
        {"replaced", [&] { put("old"); }, Existing::Replace, true, {}, "dir", {"out=data"}},
        {"old stays",
         [&] { put("old"); },
         Existing::Replace,
         false,
         err::library(err::OperationStopped),
         "dir",
         {"out=old"}},
        {"folder moved",
         [this] { fs::rename(folder / "dir", folder / "moved"); },
         Existing::Keep,
         true,
         err::library(err::OutputNotFound),
         "moved",
         {}},
        {"folder moved, old stays",
         [&] {
             put("old");
             fs::rename(folder / "dir", folder / "moved");
         },
         Existing::Replace,
         true,
         err::library(err::OutputNotFound),
         "moved",
         {"out=old"}},
        {"folder replaced",
         [this] {
             fs::rename(folder / "dir", folder / "moved");
             fs::create_directory(folder / "dir");
         },
         Existing::Keep,
         true,
         err::library(err::OutputNotFound),
         "moved",
         {}},
        {"link",
         [this] { fs::create_symlink("nowhere", folder / "dir/out"); },
         Existing::Replace,
         true,
         err::system(EEXIST),
         "dir",
         {"out="}},
        {"fifo",
         [this] { EXPECT_EQ(::mkfifo((folder / "dir/out").c_str(), 0600), 0); },
         Existing::Replace,
         true,
         err::system(EEXIST),
         "",
         {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        fs::remove_all(folder / "dir");
        fs::remove_all(folder / "moved");
        fs::create_directory(folder / "dir");
        const auto file = begin();
        EXPECT_FALSE(fs::exists(folder / "dir/out"));
        row.before();
        EXPECT_EQ(file->commit(row.existing, [&] { return row.isWanted; }), row.result);
        EXPECT_TRUE(*row.folder == '\0' || files(row.folder) == row.left);
        EXPECT_EQ(file->discard(), !row.result.ok());
        EXPECT_EQ(file->write("x", 1), 0) << "it is closed";
    }
}

TEST_P(OutputFileTest, LeavesNothingWhenItIsGivenUp)
{
    begin().reset();
    EXPECT_TRUE(fs::is_empty(folder / "dir"));
    const auto file = begin();
    OutputFile::removeHiddenNames();
    EXPECT_TRUE(fs::is_empty(folder / "dir")) << "as at an end of the process in the middle of a job";
}

const auto KindName = [](const auto& info) {
    return info.param == OutputFile::Kind::Hidden ? std::string("Hidden") : std::string("Nameless");
};

INSTANTIATE_TEST_SUITE_P(Kinds, OutputFileTest,
                         testing::Values(OutputFile::Kind::Nameless, OutputFile::Kind::Hidden), KindName);

using HiddenOutput = OutputFileTest;

TEST_P(HiddenOutput, RemovesWhatAKilledProcessLeftButNoneInUse)
{
    const auto running = begin();
    folder.write("dir/.quillet-partial-1", "forsaken");
    folder.write("dir/.quillet-other", "no partial output");
    const auto second = begin();
    EXPECT_FALSE(fs::exists(folder / "dir/.quillet-partial-1"));
    EXPECT_TRUE(running->commit(Existing::Keep).ok());
    EXPECT_FALSE(second->commit(Existing::Keep).ok());
    EXPECT_EQ(files("dir"), (std::set<std::string>{"out=data", ".quillet-other=no partial output"}));
}

INSTANTIATE_TEST_SUITE_P(Kinds, HiddenOutput, testing::Values(OutputFile::Kind::Hidden), KindName);

TEST(PrivateFile, IsItsOwnersAlone)
{
    const test::TempFolder folder;
    folder.write("key", "old");
    EXPECT_TRUE(io::writePrivateFile(folder.at("key"), "secret").ok());
    EXPECT_EQ(test::readFile(folder / "key"), "secret");
    EXPECT_EQ(fs::status(folder / "key").permissions(), fs::perms(0600));
    EXPECT_EQ(io::writePrivateFile(folder.at("none/key"), "secret"), err::system(ENOENT));
}

} // namespace
