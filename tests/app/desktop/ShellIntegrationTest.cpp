#include "app/desktop/ShellIntegration.h"
#include "app/desktop/linux/CommandQuoting.h"
#include "app/desktop/linux/OwnedFile.h"
#include "support/Environment.h"
#include "support/Eventually.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>

namespace {

using namespace thisapp::desktop;
using namespace std::string_literals;
namespace fs = std::filesystem;

TEST(CommandQuoting, DesktopEntriesAndShell)
{
    const struct
    {
        std::string path, exec, shell, value;
    } cases[] = {
        {"/a b/q", R"("/a b/q")", "'/a b/q'", "/a b/q"},
        {R"(/"`$)", R"("/\\"\\`\\$")", R"('/"`$')", R"(/"`$)"},
        {R"(/\n)", R"("/\\\\n")", R"('/\n')", R"(/\\n)"},
        {"/%f\n\t", R"("/%%f\n\t")", "'/%f\n\t'", R"(/%f\n\t)"},
        {"/it's", R"("/it's")", R"('/it'\''s')", "/it's"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(execArgument(c.path), c.exec);
        EXPECT_EQ(shellWord(c.path), c.shell);
        EXPECT_EQ(desktopString(c.path), c.value);
    }
}

class ShellIntegrationTest : public testing::Test
{
protected:
    void update(bool contextMenu, bool sendTo) const
    {
        updateShellIntegration(QString::fromStdString(program), contextMenu, sendTo);
    }
    /// Path below the folder to permissions.
    std::map<std::string, fs::perms> files() const
    {
        std::map<std::string, fs::perms> found;
        for (const auto& entry : fs::recursive_directory_iterator(folder.path()))
            if (!entry.is_directory())
                found[fs::relative(entry.path(), folder.path())] = entry.status().permissions();
        return found;
    }
    std::string read(const char* path) const { return test::readFile(folder / path); }

    test::TempFolder folder;
    test::Environment data{"XDG_DATA_HOME", (folder / "data").c_str()};
    test::Environment config{"XDG_CONFIG_HOME", (folder / "config").c_str()};
    std::string program = folder / "it's \"$our\" program {marker}";
};

constexpr const char* ServiceMenu = "data/kio/servicemenus/quillet.desktop";
constexpr const char* SendTo = "data/Thunar/sendto/quillet.desktop";

TEST_F(ShellIntegrationTest, WritesAndRemovesAsTheSettingsSay)
{
    const fs::perms plain{0644};
    const fs::perms executable{0755};
    const std::map<std::string, fs::perms> contextMenu = {
        {"config/caja/scripts/Decrypt with Quillet", executable},
        {"config/caja/scripts/Encrypt with Quillet", executable},
        {"config/caja/scripts/Open with Quillet", executable},
        {"data/nautilus/scripts/Decrypt with Quillet", executable},
        {"data/nautilus/scripts/Encrypt with Quillet", executable},
        {"data/nautilus/scripts/Open with Quillet", executable},
        {"data/nemo/actions/quillet-decrypt.nemo_action", plain},
        {"data/nemo/actions/quillet-encrypt.nemo_action", plain},
        {"data/nemo/actions/quillet-open.nemo_action", plain},
        {ServiceMenu, executable},
    };
    for (const auto& [menu, sendTo] :
         {std::pair(false, true), std::pair(true, true), std::pair(true, false), std::pair(false, false)}) {
        auto expected = menu ? contextMenu : std::map<std::string, fs::perms>();
        if (sendTo)
            expected[SendTo] = plain;
        update(menu, sendTo);
        EXPECT_EQ(files(), expected);
    }
}

TEST_F(ShellIntegrationTest, EntriesStartTheProgram)
{
    update(true, true);
    EXPECT_NE(read(ServiceMenu).find("Exec=" + execArgument(program) + " -decrypt -start -ifile %f\n"),
              std::string::npos);
    EXPECT_NE(read(SendTo).find("Exec=" + execArgument(program) + " -ifile %f\n"), std::string::npos);
    EXPECT_NE(read("data/nemo/actions/quillet-encrypt.nemo_action").find("Name=Encrypt with Quillet\n"),
              std::string::npos);

    // A relative name that looks like an option must reach the program as the file that it is.
    folder.write(program, "#!/bin/sh\nprintf '%s|' \"$@\" >>'" + (folder / "arguments") + "'\n");
    fs::permissions(program, fs::perms(0700));
    const std::string script = folder / "data/nautilus/scripts/Encrypt with Quillet";
    const std::string command = "cd '" + folder.path().string() + "' && '" + script + "' '-start x'";
    ASSERT_EQ(std::system(command.c_str()), 0);
    const std::string expected = "-encrypt|-start|-ifile|" + (folder / "-start x") + "|";
    EXPECT_TRUE(test::eventually([&] { return read("arguments") == expected; })) << read("arguments");
}

TEST_F(ShellIntegrationTest, TouchesOnlyWhatIsOursAndChanged)
{
    update(true, true);
    const auto longAgo = fs::file_time_type::clock::now() - std::chrono::hours(1);
    const std::string menu = folder / ServiceMenu;
    const std::string ours = read(ServiceMenu);
    fs::last_write_time(menu, longAgo);
    update(true, true);
    EXPECT_EQ(fs::last_write_time(menu), longAgo);

    fs::permissions(menu, fs::perms(0600));
    update(true, true);
    EXPECT_EQ(fs::status(menu).permissions(), fs::perms(0755)) << "it wouldn't show without";
    folder.write(menu, std::string(OwnedFile::Marker) + "\nfrom an older version\n");
    update(true, true);
    EXPECT_EQ(read(ServiceMenu), ours);

    folder.write(menu, "someone else's");
    for (const bool contextMenu : {true, false}) {
        update(contextMenu, true);
        EXPECT_EQ(read(ServiceMenu), "someone else's");
    }
    fs::remove(menu);
    fs::create_symlink(folder / SendTo, menu);
    for (const bool contextMenu : {true, false}) {
        update(contextMenu, true);
        EXPECT_TRUE(fs::is_symlink(menu));
    }
}

} // namespace
