#include "io/OutputFile.h"
#include "io/IStreamFile.h"
#include "io/PrivateFile.h"
#include "lib/err/ErrorCodes.h"
#include "support/SystemCall.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fcntl.h>
#include <functional>
#include <optional>
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

    std::shared_ptr<io::FilePlace> outputPlace() const
    {
        const auto place = std::make_shared<io::FilePlace>();
        EXPECT_TRUE(place->open(folder.at("dir/out")).ok());
        return place;
    }
    std::unique_ptr<OutputFile> begin()
    {
        auto file = std::make_unique<OutputFile>(GetParam());
        EXPECT_TRUE(file->open(outputPlace(), platform::Access::ownerOnly()).ok());
        EXPECT_FALSE(file->isBegun());
        EXPECT_EQ(file->write("data", 4), 4);
        EXPECT_TRUE(file->isBegun());
        return file;
    }

    static std::string shown(const std::string& name)
    {
        return name.starts_with(".quillet-partial-") ? "hidden" : name;
    }
    /// The files of a folder with their contents.
    std::set<std::string> files(const char* name)
    {
        std::set<std::string> found;
        for (const auto& entry : fs::directory_iterator(folder / name))
            found.insert(shown(entry.path().filename().string()) + "=" + test::readFile(entry.path()));
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

/// How a system call ends, or what others do before it, and what the folder then holds. The output replaces
/// a former one unless there is none.
TEST_P(OutputFileTest, IsWholeOrNotThereWhateverTheSystemSaysAndOthersDo)
{
    using Files = std::set<std::string>;
    constexpr auto Works = test::SystemCall::Works;
    constexpr ResultCode Ok, Moved = err::library(err::OutputNotFound),
                             Same = err::library(err::OutputMatchesInput);
    std::optional<test::SystemCall> second;
    const auto move = [this](const char* from, const char* to) { fs::rename(folder / from, folder / to); };
    const auto moveAll = [&] {
        move("dir", "moved");
        fs::create_directory(folder / "dir");
    };
    const auto moveBeforeANameIsGiven = [&] {
        moveAll();
        second.emplace(GetParam() == OutputFile::Kind::Hidden ? "renameat2" : "linkat", EIO);
    };
    const auto link = [&] {
        move("dir/out", "moved");
        fs::create_symlink("../moved", folder / "dir/out");
    };
    const auto swapHidden = [this] {
        fs::rename(folder.write("other", "other"), fs::directory_iterator(folder / "dir")->path());
    };
    const auto other = [this] { fs::rename(folder.write("other", "other"), folder / "dir/out"); };
    const auto another = [this] { OutputFile().open(outputPlace(), platform::Access::ownerOnly()).ok(); };
    const auto clear = [this] {
        for (const auto& entry : fs::directory_iterator(folder / "dir"))
            fs::remove(entry.path());
    };
    const Files Old{"out=old"}, New{"out=data"}, Other{"out=other"}, Plain{"out=plain"};
    const struct
    {
        const char *kinds, *call;
        int how, at;
        std::function<void()> before;
        bool isNew;
        ResultCode result;
        Files left;
    } rows[] = {
        {"N", "openat", EISDIR, 2, {}, true, Ok, New},
        {"NH", "openat", EINTR, 2, {}, true, Ok, New},
        {"NH", "openat", EACCES, 2, {}, false, err::system(EACCES), Old},
        {"NH", "fstat", EIO, 1, {}, true, err::system(EIO), {}},
        {"NH", "fstat", EIO, 2, {}, true, err::system(EIO), {}},
        {"H", "flock", EWOULDBLOCK, 1, clear, true, Ok, New},
        {"H", "flock", Works, 1, clear, true, Ok, New},
        {"NH", "fallocate", ENOSPC, 1, {}, false, err::system(ENOSPC), Old},
        {"NH", "fallocate", EOPNOTSUPP, 1, {}, true, Ok, New},
        {"NH", "fallocate", EINTR, 1, {}, true, Ok, New},
        {"NH", "lseek", EIO, 1, {}, false, err::system(EIO), Old},
        {"NH", "write", test::SystemCall::Short, 1, {}, true, Ok, New},
        {"NH", "write", test::SystemCall::Nothing, 1, {}, false, err::system(EIO), Old},
        {"NH", "write", EINTR, 1, {}, true, Ok, New},
        {"NH", "write", ENOSPC, 1, {}, false, err::system(ENOSPC), Old},
        {"NH", "fsync", EIO, 1, {}, false, err::system(EIO), Old},
        {"NH", "fsync", EINTR, 1, {}, true, Ok, New},
        {"NH", "fsync", Works, 1, other, true, Ok, New},
        {"H", "fsync", EIO, 1, swapHidden, true, err::system(EIO), {"hidden=other"}},
        {"NH", "fsync", Works, 1, [&] { move("plain", "dir/out"); }, true, Same, Plain},
        {"NH", "fsync", Works, 1, [&] { fs::create_symlink("../plain", folder / "dir/out"); }, true,
         err::system(EEXIST), Plain},
        {"NH", "fsync", Works, 1, moveBeforeANameIsGiven, true, Moved, {}},
        {"N", "linkat", Works, 1, moveAll, true, Moved, {}},
        {"NH", "fstat", EIO, 3, {}, false, err::system(EIO), Old},
        {"N", "linkat", EIO, 1, {}, true, err::system(EIO), {}},
        {"N", "linkat", EINTR, 1, {}, true, Ok, New},
        {"N", "linkat", EIO, 2, {}, false, err::system(EIO), Old},
        {"H", "renameat2", EINVAL, 1, {}, true, Ok, New},
        {"H", "renameat2", EIO, 1, {}, true, err::system(EIO), {}},
        {"N", "renameat2", EINVAL, 1, {}, false, Ok, New},
        {"N", "renameat2", EIO, 1, {}, false, err::system(EIO), Old},
        {"N", "renameat2", Works, 1, other, false, err::system(EEXIST), Other},
        {"NH", "fsync", EIO, 2, {}, true, err::system(EIO), {}},
        {"NH", "fsync", EIO, 2, {}, false, err::system(EIO), Old},
        {"NH", "fsync", EINVAL, 2, {}, false, Ok, New},
        {"NH", "fsync", EIO, 2, another, false, err::system(EIO), Old},
        {"NH", "fsync", Works, 2, other, true, Moved, Other},
        {"NH", "fsync", Works, 2, other, false, Moved, Other},
        {"NH", "fsync", Works, 2, [&] { move("dir/out", "moved"); }, true, Moved, {}},
        {"NH", "fsync", Works, 2, [&] { move("dir/out", "moved"); }, false, Moved, Old},
        {"NH", "fsync", Works, 2, link, true, Moved, {}},
    };
    for (const auto& row : rows) {
        if (std::string_view(row.kinds).find(GetParam() == OutputFile::Kind::Hidden ? 'H' : 'N') ==
            std::string_view::npos)
            continue;
        SCOPED_TRACE(row.call + std::string(" ") + std::to_string(row.at) + ", " + std::to_string(row.how));
        clear();
        fs::remove_all(folder / "moved");
        folder.write("plain", "plain");
        if (!row.isNew)
            folder.write("dir/out", "old");
        OutputFile file(GetParam());
        file.protect(platform::fileStatus(folder / "plain"));
        const test::SystemCall call(row.call, row.how, row.at, row.before);
        ResultCode result = file.open(outputPlace(), platform::Access::ownerOnly(), 1 << 17);
        EXPECT_TRUE(result.ok() || files("dir") == row.left);
        if (result.ok() && file.write("data", 4) < 4)
            result = file.lastError();
        if (result.ok())
            result = file.commit(Existing::Replace);
        EXPECT_TRUE(call.happened());
        EXPECT_EQ(result, row.result);
        second.reset();
        EXPECT_EQ(file.discard(), !row.result.ok() && !fs::is_regular_file(folder / "moved"));
        EXPECT_EQ(files("dir"), row.left);
        EXPECT_TRUE(!fs::is_directory(folder / "moved") || fs::is_empty(folder / "moved"));
    }
}

TEST_P(OutputFileTest, LeavesNothingWhenItIsGivenUp)
{
    begin().reset();
    EXPECT_TRUE(fs::is_empty(folder / "dir"));
    const auto file = begin();
    OutputFile::removeHiddenNames();
    EXPECT_TRUE(fs::is_empty(folder / "dir"));
    const auto exitMeanwhile = [this] {
        [[gnu::used]] static const OutputFile* open = begin().release();
        std::exit(0);
    };
    EXPECT_EXIT(exitMeanwhile(), testing::ExitedWithCode(0), "");
    EXPECT_TRUE(fs::is_empty(folder / "dir")) << "the process ended in the middle of a job";
}

/// How many open files a program would get that is started now.
std::ptrdiff_t inheritedFiles()
{
    const fs::directory_iterator handles("/proc/self/fd");
    return std::count_if(handles, {}, [](const fs::directory_entry& entry) {
        const int flags = ::fcntl(std::stoi(entry.path().filename()), F_GETFD);
        return flags >= 0 && (flags & FD_CLOEXEC) == 0;
    });
}

TEST_P(OutputFileTest, HoldsItsFolderNoLongerThanItLivesAndKeepsItsFilesToItself)
{
    const auto inheritedBefore = inheritedFiles();
    std::weak_ptr<io::FilePlace> held;
    {
        const auto place = outputPlace();
        held = place;
        folder.write("dir/out", "in");
        io::IStreamFile<wchar_t> in;
        EXPECT_TRUE(in.open(folder.wide("dir/out")).ok());
        platform::File again;
        EXPECT_TRUE(place->folder().openForReading("out", again).ok());
        OutputFile file(GetParam());
        EXPECT_TRUE(file.open(place, platform::Access::ownerOnly()).ok());
        EXPECT_EQ(inheritedFiles(), inheritedBefore);
    }
    EXPECT_TRUE(held.expired());
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

TEST(FilePlace, FlushesARemoval)
{
    const test::TempFolder folder;
    folder.write("file", "");
    io::FilePlace place;
    EXPECT_TRUE(place.open(folder.at("file")).ok());
    test::SystemCall::flushed.clear();
    EXPECT_TRUE(place.remove().ok());
    EXPECT_EQ(test::SystemCall::flushed, std::vector{folder.path().string()});
}

TEST(PrivateFile, IsItsOwnersAloneAndReplacesAtOnce)
{
    const test::TempFolder folder;
    folder.write("key", "old");
    for (const char* call : {"write", "fsync"}) {
        const test::SystemCall full(call, ENOSPC);
        EXPECT_EQ(io::writePrivateFile(folder.at("key"), "secret"), err::system(ENOSPC));
        EXPECT_EQ(test::readFile(folder / "key"), "old");
    }
    EXPECT_TRUE(io::writePrivateFile(folder.at("key"), "secret").ok());
    EXPECT_EQ(test::readFile(folder / "key"), "secret");
    EXPECT_EQ(fs::status(folder / "key").permissions(), fs::perms(0600));
    EXPECT_EQ(io::writePrivateFile(folder.at("none/key"), "secret"), err::system(ENOENT));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 1) << "nothing half made is left";
}

TEST(PrivateFile, ReadsSmallRegularFilesWhole)
{
    const test::TempFolder folder;
    SecretBytes read{1};
    EXPECT_EQ(io::readSmallFile("/dev/null", read), err::library(err::OpenFileFailed));
    EXPECT_EQ(io::readSmallFile(folder.at("none"), read), err::system(ENOENT));
    folder.write("big", std::string((64 << 10) + 1, 'x'));
    EXPECT_EQ(io::readSmallFile(folder.at("big"), read), err::library(err::OpenFileFailed));
    EXPECT_EQ(read, SecretBytes{1});
    for (const std::string& text : {std::string(), std::string("abc"), std::string(64 << 10, 'x')}) {
        folder.write("file", text);
        const test::SystemCall shortRead("read", test::SystemCall::Short);
        EXPECT_TRUE(io::readSmallFile(folder.at("file"), read).ok());
        EXPECT_EQ(std::string(read.begin(), read.end()), text);
    }
}

} // namespace
