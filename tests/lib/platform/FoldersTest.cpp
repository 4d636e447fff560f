#include "lib/platform/Folders.h"
#include "support/Environment.h"

#include <gtest/gtest.h>

namespace {

using namespace tessaly::platform;

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
