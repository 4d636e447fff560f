#include "crypto/job/Spool.h"

#include "crypto/Engine.h"
#include "support/SystemCall.h"
#include "support/TempFolder.h"

#include <fcntl.h>
#include <filesystem>
#include <unistd.h>
#include <utility>

namespace {

using namespace test;
namespace fs = std::filesystem;

/// This process's own way to the nameless file in that folder.
fs::path wayTo(const fs::path& folder)
{
    for (const auto& handle : fs::directory_iterator("/proc/self/fd")) {
        std::error_code gone;
        if (fs::read_symlink(handle, gone).string().starts_with(folder.string() + '/'))
            return handle.path();
    }
    return {};
}

/// Also where the file system knows no nameless files. Under a key of its own each time.
TEST(Spool, GivesBackWhatTheDiskNeverSees)
{
    std::string before;
    for (const int how : {SystemCall::Works, EOPNOTSUPP}) {
        const TempFolder folder;
        const SystemCall opening("open", how);
        tessaly::crypto::Spool spool;
        ASSERT_TRUE(spool.open(folder.path()).ok() && opening.happened());
        std::string whole;
        for (const std::size_t count : {1UL, 15UL, 70000UL, 4096UL}) {
            std::string piece(count, 'x');
            whole += piece;
            ASSERT_TRUE(spool.append(reinterpret_cast<std::uint8_t*>(piece.data()), count).ok());
        }
        const std::string way = wayTo(folder.path());
        EXPECT_NE(::linkat(AT_FDCWD, way.c_str(), AT_FDCWD, (folder / "name").c_str(), AT_SYMLINK_FOLLOW), 0);
        EXPECT_TRUE(fs::is_empty(folder.path()));
        const std::string onDisk = readFile(way);
        EXPECT_EQ(onDisk.size(), whole.size());
        EXPECT_EQ(onDisk.find("xxxxxxxx"), std::string::npos);
        EXPECT_NE(std::exchange(before, onDisk), onDisk);
        for (const std::int64_t atOnce : {7L, 100000L}) {
            ASSERT_TRUE(spool.rewind().ok() && spool.isAtStart());
            std::string read;
            std::string piece(static_cast<std::size_t>(atOnce), ' ');
            for (std::int64_t got = 0; spool.read(piece.data(), atOnce, got);)
                read.append(piece, 0, static_cast<std::size_t>(got));
            EXPECT_TRUE(read == whole && spool.isAtEnd() && spool.lastError().ok());
            EXPECT_EQ(spool.size(), std::ssize(whole));
        }
    }
    EXPECT_FALSE(tessaly::crypto::Spool().open("/nowhere").ok());
}

TEST(Spool, TellsWhatTheDiskRefusesAndGoesOnAfterARewind)
{
    const TempFolder folder;
    tessaly::crypto::Spool spool;
    ASSERT_TRUE(spool.open(folder.path()).ok());
    const auto append = [&](int how) {
        const SystemCall writing("write", how);
        std::string piece = "piece";
        return spool.append(reinterpret_cast<std::uint8_t*>(piece.data()), piece.size());
    };
    EXPECT_TRUE(append(SystemCall::Short).ok());
    std::string read(100, ' ');
    std::int64_t got = 0;
    for (const auto& [how, error] : {std::pair(EIO, err::system(EIO)),
                                     std::pair(SystemCall::Nothing, err::library(err::ReadFileFailed))}) {
        ASSERT_TRUE(spool.rewind().ok());
        const SystemCall broken("read", how);
        EXPECT_FALSE(spool.read(read.data(), 100, got));
        EXPECT_EQ(spool.lastError(), error);
        EXPECT_TRUE(spool.rewind().ok() && spool.lastError().ok());
        EXPECT_TRUE(spool.read(read.data(), 100, got));
        EXPECT_EQ(read.substr(0, static_cast<std::size_t>(got)), "piece");
    }
    EXPECT_EQ(append(ENOSPC).first(), err::system(ENOSPC));
}

} // namespace
