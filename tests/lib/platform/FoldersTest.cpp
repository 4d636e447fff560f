#include "lib/platform/Folders.h"
#include "lib/err/ErrorCodes.h"
#include "support/Environment.h"
#include "support/SystemCall.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace {

using namespace tessaly::platform;

TEST(Folders, MadeOnesAreFlushedInTheirParents)
{
    const test::TempFolder folder;
    const std::string top = folder / "a";
    auto& flushed = test::SystemCall::flushed;
    flushed.clear();
    const mode_t before = ::umask(0027);
    EXPECT_TRUE(createFolders(top + "/b/c/").ok());
    ::umask(before);
    EXPECT_EQ(flushed, (std::vector<std::string>{folder.path().string(), top, top + "/b"}));
    EXPECT_EQ(std::filesystem::status(top + "/b").permissions(), std::filesystem::perms(0750));
    EXPECT_TRUE(createFolders(top + "/b").ok());
    EXPECT_EQ(flushed.size(), 3U) << "nothing new";
    folder.write("file", "");
    EXPECT_EQ(createFolders(folder / "file/x"), tessaly::err::system(EEXIST));
    EXPECT_TRUE(createPrivateFolders(folder / "p/q").ok());
    for (const char* name : {"p", "p/q"})
        EXPECT_EQ(std::filesystem::status(folder / name).permissions(), std::filesystem::perms(0700));
}

TEST(Folders, FollowTheEnvironment)
{
    const test::Environment home("HOME", "/home/someone/");
    {
        const test::Environment unset("XDG_STATE_HOME", nullptr);
        const test::Environment relative("XDG_DATA_HOME", "data");
        const test::Environment config("XDG_CONFIG_HOME", "/etc/mine//");
        EXPECT_EQ(stateFolder(), "/home/someone//.local/state");
        EXPECT_EQ(dataFolder(), "/home/someone//.local/share");
        EXPECT_EQ(configFolder(), "/etc/mine");
    }
    const test::Environment homeless("HOME", nullptr);
    const test::Environment unset("XDG_STATE_HOME", nullptr);
    EXPECT_TRUE(stateFolder().ends_with("/.local/state")) << "the user data base knows the home";
}

} // namespace
