#include "lib/platform/Folder.h"
#include "lib/platform/Folders.h"
#include "lib/platform/LogFile.h"
#include "lib/platform/Path.h"
#include "lib/platform/windows/AccessList.h"
#include "lib/platform/windows/SystemCall.h"
#include "lib/platform/windows/SystemPath.h"
#include "support/TempFolder.h"
#include "support/Walk.h"

#include <string>

namespace {

using namespace tessaly;
using namespace tessaly::platform;
namespace fs = std::filesystem;

TEST(SystemPath, KnowsWhatTheSystemWouldMisread)
{
    const auto check = [](const std::string& path) { return isMisread(widePath(path)) ? "misread" : "fine"; };
    test::walk("misread_paths.txt", {{"path", check}});
    EXPECT_EQ(fileStatus(L"nul").kind, FileKind::Other);
}

TEST(SystemPath, LongOnesWork)
{
    const test::TempFolder folder;
    fs::path path = folder.path();
    for (int i = 0; i < 12; ++i)
        path /= std::wstring(40, L'\u00E9');
    EXPECT_TRUE(createFolders(nativeText(path)).ok());
    File file;
    EXPECT_TRUE(file.openForWriting(path / L"x").ok());
    EXPECT_TRUE(file.close().ok());
    EXPECT_EQ(fileStatus(path / L"x").kind, FileKind::Regular);
    Folder held;
    EXPECT_TRUE(held.openParentOf(path / L"x").ok());
    EXPECT_TRUE(held.remove(L"x").ok());
    held = Folder();
    for (; path != folder.path(); path = path.parent_path())
        EXPECT_TRUE(::RemoveDirectoryW(systemPath(path).c_str()));
}

TEST(WindowsPath, EveryNameSurvives)
{
    EXPECT_EQ(widePath("a\xC3\xA9\xF0\x9F\x94\x91"), L"a\u00E9\U0001F511");
    for (const std::wstring name : {L"\xD83D", L"\xDC11\xD83D", L"a\xDCE9 b", L"\U0001F511\xD83D"})
        EXPECT_EQ(widePath(nativePath(name)), name);
    EXPECT_EQ(widePath("caf\xE9!\xF0\x9F"), L"caf\uFFFD!\uFFFD\uFFFD");
}

TEST(WindowsPath, AShareIsNoFolderOfTheDrive)
{
    const fs::path folder = LR"(\\server\share\a)";
    EXPECT_EQ(absolutePath(folder / L"b"), folder / L"b");
    EXPECT_EQ(realFolder(L"//server/share/x/../a"), folder);
    EXPECT_EQ(absolutePath(L"b"), fs::current_path() / L"b");
}

/// A folder with two files, held open.
class FolderTest : public testing::Test
{
protected:
    void SetUp() override
    {
        folder.write("old", "old");
        folder.write("new", "new");
        ASSERT_TRUE(held.openParentOf(folder.at("any")).ok());
    }

    std::string text(const char* name) const { return test::readFile(folder / name); }

    test::TempFolder folder;
    Folder held;
};

TEST_F(FolderTest, RenamesAndRemoves)
{
    EXPECT_TRUE(isOccupied(held.renameToNew(L"new", L"old")));
    EXPECT_TRUE(held.renameOver(L"new", L"old").ok());
    EXPECT_EQ(text("old"), "new");
    EXPECT_TRUE(held.renameToNew(L"old", L"\u00E9\u65E5").ok());
    EXPECT_FALSE(held.status(L"old").exists());
    EXPECT_TRUE(isMissing(held.remove(L"old")));
    EXPECT_TRUE(held.remove(L"\u00E9\u65E5").ok());
    EXPECT_TRUE(fs::is_empty(folder.path()));
    EXPECT_TRUE(held.sync().ok());
    EXPECT_TRUE(isUnsupported(held.exchange(L"a", L"b")));
    EXPECT_FALSE(held.renameToNew(L"x", L"NUL").ok());
}

TEST_F(FolderTest, NewFilesAreReadByNobodyElseAndCanBeRenamedAndRemoved)
{
    File file;
    EXPECT_TRUE(isOccupied(held.createNew(L"old", Access::byUmask(), file)));
    ASSERT_TRUE(held.createNew(L"x", Access::ownerOnly(), file).ok());
    std::size_t count = 0;
    EXPECT_TRUE(file.write("abc", 3, count).ok());
    File other;
    EXPECT_FALSE(held.openForReading(L"x", other).ok());
    FileStatus status;
    EXPECT_TRUE(file.status(status).ok());
    EXPECT_EQ(status.size, 3);
    EXPECT_TRUE(held.renameToNew(L"x", L"y").ok());
    EXPECT_TRUE(held.status(L"y").sameFile(status));
    EXPECT_FALSE(held.status(L"old").sameFile(status));
    EXPECT_EQ(held.ownFiles("y"), std::vector<fs::path>{L"y"});
    EXPECT_TRUE(held.remove(L"y").ok());
    EXPECT_TRUE(file.close().ok());
    EXPECT_FALSE(held.status(L"y").exists());
}

TEST_F(FolderTest, IsTheParentOfItsOwnFilesOnly)
{
    EXPECT_TRUE(held.isParentOf(folder.at("other")));
    fs::create_directory(folder / "below");
    EXPECT_FALSE(held.isParentOf(folder.at("below/other")));
    EXPECT_TRUE(isMissing(Folder().openParentOf(folder.at("none/other"))));
    EXPECT_FALSE(Folder().openParentOf(folder.at("old/other")).ok());
}

TEST_F(FolderTest, LocksExcludeOneAnother)
{
    File first;
    File second;
    ASSERT_TRUE(first.openForWriting(folder.at("old")).ok());
    ASSERT_TRUE(second.openForReading(folder.at("old")).ok());
    EXPECT_TRUE(first.tryLock(Lock::Exclusive).ok());
    EXPECT_TRUE(isLocked(second.tryLock(Lock::Shared)));
    char byte = 0;
    std::size_t got = 0;
    EXPECT_TRUE(second.read(&byte, 1, got).ok()) << "its bytes are not locked";
    EXPECT_TRUE(first.close().ok());
    EXPECT_TRUE(second.tryLock(Lock::Exclusive).ok());
}

TEST_F(FolderTest, ATemporaryFileIsNobodyElsesAndEnds)
{
    File file;
    ASSERT_TRUE(file.openTemporary(folder.path()).ok());
    std::size_t count = 0;
    EXPECT_TRUE(file.write("abc", 3, count).ok());
    EXPECT_TRUE(file.seekToStart().ok());
    char bytes[4] = {};
    EXPECT_TRUE(file.read(bytes, sizeof bytes, count).ok());
    EXPECT_EQ(count, 3U);
    EXPECT_TRUE(file.read(bytes, sizeof bytes, count).ok());
    EXPECT_EQ(count, 0U);
    EXPECT_TRUE(file.reserve(1 << 20).ok());
    EXPECT_TRUE(file.sync().ok());
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 3);
    EXPECT_TRUE(file.close().ok());
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 2);
}

std::uint32_t fingerprintOf(const fs::path& path)
{
    File file;
    FileStatus status;
    EXPECT_TRUE(file.openForReading(path).ok() && file.status(status).ok());
    return status.mode;
}

/// A new file has its folder's list when that is the very list of the file that it must not outdo, and is
/// its user's alone otherwise.
TEST_F(FolderTest, NewFilesAreNoMoreOpenThanWished)
{
    File file;
    FileStatus status;
    const auto create = [&](const wchar_t* name, const Access& access) {
        EXPECT_TRUE(held.createNew(name, access, file).ok());
        EXPECT_TRUE(file.status(status).ok());
        EXPECT_TRUE(file.close().ok());
        return status;
    };
    const FileStatus handedDown = create(L"inherited", Access::byUmask());
    const FileStatus userOnly = create(L"private", Access::ownerOnly());
    EXPECT_NE(handedDown.mode, userOnly.mode);
    EXPECT_EQ(create(L"as inherited", Access::noMoreThan(handedDown)).mode, handedDown.mode);
    EXPECT_EQ(create(L"as private", Access::noMoreThan(userOnly)).mode, userOnly.mode);
    EXPECT_EQ(fingerprintOf(folder.at("private")), userOnly.mode);
}

TEST_F(FolderTest, LogLinesGoToTheEndOfWhatOthersWrote)
{
    const std::string path = nativeText(folder.at("log"));
    const auto first = LogFile::open(path, LogFile::Mode::Append);
    const auto second = LogFile::open(path, LogFile::Mode::Append);
    ASSERT_TRUE(first && second);
    EXPECT_TRUE(first->write("one\n") && second->write("two\n") && first->write("three"));
    EXPECT_TRUE(LogFile::open(path, LogFile::Mode::Append)->write("four\n"));
    EXPECT_EQ(text("log"), "one\ntwo\nthree\nfour\n");
    EXPECT_TRUE(first->isStillAt(path));
    EXPECT_TRUE(LogFile::open(path, LogFile::Mode::Truncate)->write("new\n"));
    EXPECT_EQ(text("log"), "new\n");
    EXPECT_TRUE(first->isStillAt(path));
    fs::rename(folder / "log", folder / "older");
    EXPECT_FALSE(first->isStillAt(path));
    EXPECT_TRUE(removeFile(folder.at("older")).ok());
}

} // namespace
