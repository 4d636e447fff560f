#include "lib/err/ErrorCodes.h"
#include "lib/platform/Folders.h"
#include "lib/platform/Process.h"
#include "lib/platform/StandardStreams.h"
#include "lib/platform/linux/CapsLight.h"
#include "support/Environment.h"
#include "support/SystemCall.h"
#include "support/TempFolder.h"
#include "support/Walk.h"

#include <sys/prctl.h>
#include <sys/resource.h>

namespace {

using namespace tessaly::platform;
using std::filesystem::perms;

perms permissions(const std::string& path)
{
    return std::filesystem::status(path).permissions();
}

TEST(CapsLock, IsOnWhenOneKeyboardShowsIt)
{
    const test::TempFolder folder;
    const auto setLight = [&](const std::string& text) {
        const auto [name, brightness] = test::halves(text);
        folder.write(name + "/brightness", brightness);
        const auto isOn = capsLightOn(folder.path());
        return !isOn ? "unknown" : *isOn ? "on" : "off";
    };
    test::walk("caps_lights.txt", {{"light", setLight}});
    EXPECT_EQ(capsLightOn(folder / "nowhere"), std::nullopt);
}

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
    EXPECT_EQ(permissions(top + "/b"), perms(0750));
    EXPECT_TRUE(createFolders(top + "/b").ok());
    EXPECT_EQ(flushed.size(), 3U) << "nothing new";
    folder.write("file", "");
    EXPECT_EQ(createFolders(folder / "file/x"), tessaly::err::system(EEXIST));
    EXPECT_TRUE(createPrivateFolders(folder / "p/q").ok());
    for (const char* name : {"p", "p/q"})
        EXPECT_EQ(permissions(folder / name), perms(0700));
}

TEST(Folders, FollowTheEnvironment)
{
    const test::Environment unset("XDG_STATE_HOME", nullptr);
    {
        const test::Environment home("HOME", "/home/someone/");
        const test::Environment relative("XDG_DATA_HOME", "data");
        const test::Environment config("XDG_CONFIG_HOME", "/etc/mine//");
        EXPECT_EQ(stateFolder(), "/home/someone//.local/state");
        EXPECT_EQ(dataFolder(), "/home/someone//.local/share");
        EXPECT_EQ(configFolder(), "/etc/mine");
    }
    const test::Environment homeless("HOME", nullptr);
    EXPECT_TRUE(stateFolder().ends_with("/.local/state")) << "the user data base knows the home";
}

TEST(Path, IsUnicodeButForBytesThatAreNone)
{
    EXPECT_EQ(widePath("a\xC3\xA9\xF0\x9F\x94\x91"), L"a\u00E9\U0001F511");
    EXPECT_EQ(widePath("caf\xE9"), std::wstring(L"caf") + wchar_t{0xDCE9});
}

/// A network's disk tells only then that it is full.
TEST(StandardStreams, TellThatTheEndOfTheOutputCouldNotBeStored)
{
    {
        const test::SystemCall full("close", EDQUOT);
        EXPECT_EQ(closeStandardOutput(), tessaly::err::system(EDQUOT));
    }
    const test::SystemCall interrupted("close", EINTR);
    EXPECT_TRUE(closeStandardOutput().ok());
}

// In a child process, which it changes for good.
TEST(ProcessDeathTest, DisablesCoreDumps)
{
    const auto disable = [] {
        const bool done = disableCoreDumps();
        rlimit limit{};
        limit.rlim_max = 1;
        ::getrlimit(RLIMIT_CORE, &limit);
        std::_Exit(done && limit.rlim_max == 0 && ::prctl(PR_GET_DUMPABLE) == 0 ? 0 : 1);
    };
    EXPECT_EXIT(disable(), testing::ExitedWithCode(0), "");
}

} // namespace
