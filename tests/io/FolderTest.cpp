#include "lib/platform/Folder.h"
#include "lib/err/ErrorCodes.h"
#include "support/SystemCall.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

using namespace tessaly;
using platform::Access;
using platform::File;
using test::SystemCall;
namespace fs = std::filesystem;

class FolderTest : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(opened.openParentOf(folder.at("x")).ok()); }

    fs::perms permissionsOf(const char* name) const { return fs::status(folder / name).permissions(); }

    test::TempFolder folder;
    platform::Folder opened;
};

TEST_F(FolderTest, NewFilesAreForThoseTheyAreMeantForAlone)
{
    const mode_t mask = ::umask(0);
    ::umask(mask);
    const auto meantFor = [](std::uint32_t mode, bool isOwnGroup) {
        platform::FileStatus status;
        status.mode = mode;
        status.group = ::getegid() + (isOwnGroup ? 0 : 1);
        return Access::noMoreThan(status);
    };
    const std::pair<Access, unsigned> rows[] = {
        {Access::ownerOnly(), 0600},           {Access::byUmask(), 0666 & ~mask},
        {meantFor(0640, true), 0640 & ~mask},  {meantFor(0640, false), 0600},
        {meantFor(0664, false), 0644 & ~mask}, {meantFor(04755, true), 0644 & ~mask},
    };
    for (const auto& [access, mode] : rows) {
        fs::remove(folder / "new");
        File file;
        const SystemCall beforeItIsGranted("fstat", SystemCall::Works, 1,
                                           [this] { EXPECT_EQ(permissionsOf("new"), fs::perms(0600)); });
        EXPECT_TRUE(opened.createNew("new", access, file).ok());
        EXPECT_EQ(permissionsOf("new"), fs::perms(mode));
    }
    folder.write("there", "there");
    File file;
    EXPECT_EQ(opened.createNew("there", Access::byUmask(), file), err::system(EEXIST));
    const SystemCall broken("fstat", EIO);
    EXPECT_EQ(opened.createNew("refused", Access::byUmask(), file), err::system(EIO));
    EXPECT_FALSE(fs::exists(folder / "refused"));
}

/// However the file system can do it: at once, by a second name, or behind an empty file.
TEST_F(FolderTest, ANewNameReplacesNothing)
{
    for (const int failing : {0, 1, 2}) {
        SCOPED_TRACE(failing);
        std::optional<SystemCall> rename, link;
        const auto arm = [&] {
            failing > 0 ? void(rename.emplace("renameat2", EINVAL)) : rename.reset();
            failing > 1 ? void(link.emplace("linkat", EPERM)) : link.reset();
        };
        folder.write("from", "from");
        folder.write("to", "to");
        arm();
        EXPECT_EQ(opened.renameToNew("from", "to"), err::system(EEXIST));
        EXPECT_EQ(test::readFile(folder / "from") + test::readFile(folder / "to"), "fromto");
        fs::remove(folder / "to");
        arm();
        EXPECT_TRUE(opened.renameToNew("from", "to").ok());
        EXPECT_EQ(test::readFile(folder / "to"), "from");
        EXPECT_FALSE(fs::exists(folder / "from"));
    }
}

TEST_F(FolderTest, OneThatCannotBeReadStillTakesFiles)
{
    platform::Folder closed;
    const SystemCall unreadable("open", EACCES);
    EXPECT_TRUE(closed.openParentOf(folder.at("x")).ok());
    File file;
    EXPECT_TRUE(closed.createNew("new", Access::byUmask(), file).ok());
    EXPECT_TRUE(closed.sync().ok());
    EXPECT_TRUE(fs::exists(folder / "new"));
}

TEST_F(FolderTest, OwnFilesAreRegularOnesOfThisUser)
{
    for (const char* name : {"mine-1", "mine-2", "other", "not mine-3"})
        folder.write(name, "");
    fs::create_symlink("other", folder / "mine-link");
    fs::create_directory(folder / "mine-folder");
    if (::geteuid() == 0) {
        folder.write("mine-another's", "");
        ASSERT_EQ(::chown((folder / "mine-another's").c_str(), 12345, 12345), 0);
    }
    std::vector<fs::path> own = opened.ownFiles("mine-");
    std::ranges::sort(own);
    EXPECT_EQ(own, (std::vector<fs::path>{"mine-1", "mine-2"}));
}

/// The list lets a user and the group read, which show in the mode as the group's rights.
TEST_F(FolderTest, StatusIsExactAndTakesAnAccessListForTheOwnersAlone)
{
    folder.write("file", "12345");
    const timespec times[] = {{1, 0}, {1700000000, 123456789}};
    ASSERT_EQ(::utimensat(AT_FDCWD, (folder / "file").c_str(), times, 0), 0);
    ASSERT_EQ(::chmod((folder / "file").c_str(), 0640), 0);
    File file;
    platform::FileStatus status;
    ASSERT_TRUE(opened.openForReading("file", file).ok() && file.status(status).ok());
    EXPECT_EQ(status.modifiedNs, 1700000000123456789);
    EXPECT_EQ(status.mode, 0640U);
    EXPECT_EQ(status.size, 5);
    const std::uint32_t list[] = {2,          0x60001, 0xFFFFFFFF, 0x40002, 12345,     0x40004,
                                  0xFFFFFFFF, 0x40010, 0xFFFFFFFF, 0x20,    0xFFFFFFFF};
    if (::setxattr((folder / "file").c_str(), "system.posix_acl_access", list, sizeof list, 0) != 0)
        GTEST_SKIP() << "no access lists here";
    ASSERT_TRUE(file.status(status).ok());
    EXPECT_EQ(status.mode, 0600U);

    // What the folder would have every new file get.
    ASSERT_EQ(::setxattr(folder.path().c_str(), "system.posix_acl_default", list, sizeof list, 0), 0);
    status.mode = 0640;
    status.group = ::getegid();
    ASSERT_TRUE(opened.createNew("new", Access::noMoreThan(status), file).ok());
    EXPECT_EQ(permissionsOf("new"), fs::perms(0600));
}

} // namespace
