#include "io/OutputFile.h"
#include "io/IStreamFile.h"
#include "io/PrivateFile.h"
#include "lib/err/ErrorCodes.h"
#include "support/DataRows.h"
#include "support/SystemCall.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fcntl.h>
#include <map>
#include <set>

namespace {

using namespace tessaly;
using io::OutputFile;
using test::SystemCall;
using Existing = OutputFile::Existing;
namespace fs = std::filesystem;

using Kind = OutputFile::Kind;

class OutputFileTest : public testing::Test
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
        auto file = std::make_unique<OutputFile>(kind);
        EXPECT_TRUE(file->open(outputPlace(), platform::Access::ownerOnly()).ok());
        EXPECT_FALSE(file->isBegun());
        EXPECT_EQ(file->write("data", 4), 4);
        EXPECT_TRUE(file->isBegun());
        return file;
    }
    void move(const char* from, const char* to) const { fs::rename(folder / from, folder / to); }
    void putOther(const fs::path& there) const { fs::rename(folder.write("other", "other"), there); }
    fs::path firstFile() const { return fs::directory_iterator(folder / "dir")->path(); }

    /// All files but the input, with their contents.
    std::string files() const
    {
        std::set<std::string> found;
        for (const auto& entry : fs::recursive_directory_iterator(folder.path())) {
            std::string name = entry.path().lexically_relative(folder.path());
            if (name.starts_with("dir/.quillet-partial-"))
                name = "dir/hidden";
            if (!entry.is_directory() && name != "plain")
                found.insert(name + '=' + (entry.is_regular_file() ? test::readFile(entry.path()) : ""));
        }
        std::string all;
        for (const std::string& file : found)
            all += (all.empty() ? "" : ",") + file;
        return all;
    }

    test::TempFolder folder;
    Kind kind = Kind::Hidden;
};

TEST_F(OutputFileTest, IsWholeOrNotThereWhateverTheSystemSaysAndOthersDo)
{
    std::optional<SystemCall> second;
    const auto replaceFolder = [this] {
        move("dir", "moved");
        fs::create_directory(folder / "dir");
    };
    const std::map<std::string, std::function<void()>> events = {
        {"", {}},
        {"folder-moves", [&] { move("dir", "moved"); }},
        {"folder-is-replaced", replaceFolder},
        {"folder-is-replaced,EIO",
         [&] {
             replaceFolder();
             second.emplace(kind == Kind::Hidden ? "renameat2" : "linkat", EIO);
         }},
        {"dangling-link-comes", [&] { fs::create_symlink("nowhere", folder / "dir/out"); }},
        {"link-to-input-comes", [&] { fs::create_symlink("../plain", folder / "dir/out"); }},
        {"fifo-comes", [&] { ASSERT_EQ(::mkfifo((folder / "dir/out").c_str(), 0600), 0); }},
        {"other-comes", [&] { putOther(folder / "dir/out"); }},
        {"input-moves-there", [&] { move("plain", "dir/out"); }},
        {"hidden-file-goes", [&] { fs::remove(firstFile()); }},
        {"hidden-file-is-replaced", [&] { putOther(firstFile()); }},
        {"another-begins", [&] { (void)OutputFile().open(outputPlace(), platform::Access::ownerOnly()); }},
        {"output-moves", [&] { move("dir/out", "moved"); }},
        {"output-moves,link",
         [&] {
             move("dir/out", "moved");
             fs::create_symlink("../moved", folder / "dir/out");
         }},
    };
    const auto run = [&](const test::Row& row, char letter) {
        SCOPED_TRACE(letter + testing::PrintToString(row));
        kind = letter == 'H' ? Kind::Hidden : Kind::Nameless;
        fs::remove_all(folder / "dir");
        fs::remove_all(folder / "moved");
        fs::create_directory(folder / "dir");
        folder.write("plain", "plain");
        if (!row.at(5).empty())
            folder.write("dir/out", row[5]);
        const std::string before = files();
        OutputFile file(kind);
        file.protect(platform::fileStatus(folder / "plain"));
        const SystemCall call(row[1], SystemCall::way(row[3]), std::stoi(row[2]), events.at(row[4]));
        ResultCode result = file.open(outputPlace(), platform::Access::ownerOnly(), 1 << 17);
        EXPECT_TRUE(result.ok() || files() == before);
        if (result.ok() && file.write("data", 4) < 4)
            result = file.lastError();
        EXPECT_EQ(fs::exists(folder / "dir/out"), !row[5].empty());
        if (result.ok())
            result = file.commit(row[6] == "keep" ? Existing::Keep : Existing::Replace,
                                 [&] { return row[6] != "none"; });
        EXPECT_TRUE(call.happened());
        EXPECT_EQ(test::told(result), row.at(7));
        const bool isLost = second.has_value() && !row[5].empty(); // the first try to give it back failed
        second.reset();
        EXPECT_EQ(file.discard(), !result.ok() && !fs::is_regular_file(folder / "moved") && !isLost);
        EXPECT_EQ(files(), row.at(8));
        EXPECT_EQ(file.write("x", 1), 0) << "it is closed";
    };
    for (const test::Row& row : test::dataRows("outputs.txt"))
        for (const char letter : row.at(0))
            run(row, letter);
}

TEST_F(OutputFileTest, LeavesNothingWhenItIsGivenUp)
{
    const auto exitMeanwhile = [this] {
        [[gnu::used]] static const OutputFile* open = begin().release();
        std::exit(0);
    };
    for (const Kind each : {Kind::Hidden, Kind::Nameless}) {
        kind = each;
        begin().reset();
        EXPECT_TRUE(fs::is_empty(folder / "dir"));
        const auto file = begin();
        OutputFile::removeHiddenNames();
        EXPECT_TRUE(fs::is_empty(folder / "dir"));
        EXPECT_EXIT(exitMeanwhile(), testing::ExitedWithCode(0), "");
        EXPECT_TRUE(fs::is_empty(folder / "dir")) << "the process ended in the middle of a job";
    }
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

TEST_F(OutputFileTest, HoldsItsFolderNoLongerThanItLivesAndKeepsItsFilesToItself)
{
    const auto inheritedBefore = inheritedFiles();
    std::weak_ptr<io::FilePlace> held;
    for (const Kind each : {Kind::Nameless, Kind::Hidden}) {
        const auto place = outputPlace();
        held = place;
        folder.write("dir/out", "in");
        io::IStreamFile<wchar_t> in;
        EXPECT_TRUE(in.open(folder.wide("dir/out")).ok());
        platform::File again;
        EXPECT_TRUE(place->folder().openForReading("out", again).ok());
        OutputFile file(each);
        EXPECT_TRUE(file.open(place, platform::Access::ownerOnly()).ok());
        EXPECT_EQ(inheritedFiles(), inheritedBefore);
    }
    EXPECT_TRUE(held.expired());
}

TEST_F(OutputFileTest, RemovesWhatAKilledProcessLeftButNoneInUse)
{
    const auto running = begin();
    folder.write("dir/.quillet-partial-1", "forsaken");
    folder.write("dir/.quillet-other", "no partial output");
    const auto second = begin();
    EXPECT_FALSE(fs::exists(folder / "dir/.quillet-partial-1"));
    EXPECT_TRUE(running->commit(Existing::Keep).ok());
    EXPECT_FALSE(second->commit(Existing::Keep).ok());
    EXPECT_EQ(files(), "dir/.quillet-other=no partial output,dir/out=data");
}

TEST(FilePlace, FlushesARemoval)
{
    const test::TempFolder folder;
    folder.write("file", "");
    io::FilePlace place;
    EXPECT_TRUE(place.open(folder.at("file")).ok());
    SystemCall::flushed.clear();
    EXPECT_TRUE(place.remove().ok());
    EXPECT_EQ(SystemCall::flushed, std::vector{folder.path().string()});
}

TEST(PrivateFile, IsItsOwnersAloneAndReplacesAtOnceAndIsReadWhole)
{
    const test::TempFolder folder;
    const fs::path key = folder.at("key");
    folder.write("key", "old");
    for (const char* call : {"write", "fsync"}) {
        const SystemCall full(call, ENOSPC);
        EXPECT_EQ(io::writePrivateFile(key, "secret"), err::system(ENOSPC));
        EXPECT_EQ(test::readFile(key), "old");
    }
    EXPECT_EQ(io::writePrivateFile(folder.at("none/key"), "secret"), err::system(ENOENT));
    SecretBytes read{1};
    EXPECT_EQ(io::readSmallFile("/dev/null", read), err::library(err::OpenFileFailed));
    EXPECT_EQ(io::readSmallFile(folder.at("none"), read), err::system(ENOENT));
    const std::string largest(64 << 10, 'x');
    EXPECT_TRUE(io::writePrivateFile(key, largest + 'x').ok());
    EXPECT_EQ(io::readSmallFile(key, read), err::library(err::OpenFileFailed));
    EXPECT_EQ(read, SecretBytes{1});
    for (const std::string& text : {std::string(), std::string("abc"), largest}) {
        EXPECT_TRUE(io::writePrivateFile(key, text).ok());
        EXPECT_EQ(fs::status(key).permissions(), fs::perms(0600));
        const SystemCall shortRead("read", SystemCall::Short);
        EXPECT_TRUE(io::readSmallFile(key, read).ok());
        EXPECT_EQ(std::string(read.begin(), read.end()), text);
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 1) << "nothing half made is left";
}

} // namespace
