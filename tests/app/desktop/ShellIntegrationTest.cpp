#include "app/desktop/ShellIntegration.h"
#include "app/commandline/Arguments.h"
#include "app/desktop/linux/shell/CommandQuoting.h"
#include "app/desktop/linux/shell/OwnedFile.h"
#include "common/path/PathText.h"
#include "support/DataRows.h"
#include "support/Environment.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using namespace thisapp::desktop;
using namespace std::string_literals;
namespace fs = std::filesystem;

TEST(CommandQuoting, DesktopEntriesAndShell)
{
    const std::array<const char*, 4> cases[] = {
        // the path; in a line "Exec"; for the shell; as a value
        {"/a b/q", R"("/a b/q")", "'/a b/q'", "/a b/q"},
        {R"(/"`$)", R"("/\\"\\`\\$")", R"('/"`$')", R"(/"`$)"},
        {R"(/\n)", R"("/\\\\n")", R"('/\n')", R"(/\\n)"},
        {"/%f\n\t", R"("/%%f\n\t")", "'/%f\n\t'", R"(/%f\n\t)"},
        {"/it's", R"("/it's")", R"('/it'\''s')", "/it's"},
    };
    for (const auto& [path, exec, shell, value] : cases) {
        EXPECT_EQ(execArgument(path), exec);
        EXPECT_EQ(shellWord(path), shell);
        EXPECT_EQ(firstShellWord(shell + " -x 'y'"s), path);
        EXPECT_EQ(desktopString(path), value);
    }
}

TEST(Arguments, TheUrlOfAFileIsItsPath)
{
    const test::TempFolder folder;
    const fs::path before = fs::current_path();
    fs::current_path(folder.path());
    fs::create_directory("file:");
    folder.write("file:/there", "");
    const std::pair<const char*, std::string> cases[] = {
        {"file:///a%25f%0A%E6%9A%97%E9", "/a%f\n\xe6\x9a\x97\xe9"},
        {"file://localhost/b", "/b"},
        {"file://elsewhere/c", "file://elsewhere/c"},
        {"file:/d", "file:/d"},
        {"file:///there", "file:///there"},
        {"file:///gone", "/gone"},
        {"/e%20f\xe9", "/e%20f\xe9"},
    };
    for (const auto& [argument, path] : cases)
        EXPECT_EQ(thisapp::textPath(thisapp::argumentTexts({argument}).front()), path);
    fs::current_path(before);
}

constexpr char Menu[] = "data/kio/servicemenus/quillet.desktop";
constexpr char Actions[] = "config/Thunar/uca.xml";
constexpr char SendTo[] = "data/Thunar/sendto/quillet.desktop";
constexpr char Nemo[] = "data/nemo/actions/quillet-open.nemo_action";

class ShellIntegrationTest : public testing::Test
{
protected:
    void update(bool contextMenu, bool sendTo) const
    {
        updateShellIntegration(QString::fromStdString(program), contextMenu, sendTo);
    }
    /// Permissions and path of each.
    std::set<std::string> files() const
    {
        std::set<std::string> found;
        for (const auto& entry : fs::recursive_directory_iterator(folder.path()))
            if (!entry.is_directory())
                found.insert(QString::number(int(entry.status().permissions()), 8).toStdString() + ' ' +
                             fs::relative(entry.path(), folder.path()).string());
        return found;
    }
    std::string read(const char* path) const { return test::readFile(folder / path); }
    void expectIn(const char* path, const std::string& part) const
    {
        EXPECT_NE(read(path).find(part), std::string::npos) << part << "\nis not in\n" << read(path);
    }
    void writeProgram(const std::string& name, const std::string& script) const
    {
        folder.write(name, "#!/bin/sh\n" + script + "\n");
        fs::permissions(folder / name, fs::perms(0700));
    }
    /// The menus are written for managers that are there.
    void SetUp() override
    {
        for (const char* name :
             {"config/caja", "config/nemo", "config/pcmanfm", "data/dolphin", "data/nautilus", "bin",
              "build/bin", "system/Thunar", "config/Thunar", "data/Thunar"})
            fs::create_directories(folder / name);
    }

    test::TempFolder folder;
    test::Environment data{"XDG_DATA_HOME", (folder / "data").c_str()};
    test::Environment config{"XDG_CONFIG_HOME", (folder / "config").c_str()};
    test::Environment system{"XDG_CONFIG_DIRS", (folder / "system").c_str()};
    test::Environment programs{"PATH", (folder / "bin").c_str()};
    std::string program = folder / "it's \"$our\" & program; {marker} 100%";
};

TEST_F(ShellIntegrationTest, WritesAndRemovesAsTheSettingsSay)
{
    for (const auto& [menu, sendTo] :
         {std::pair(false, true), std::pair(true, true), std::pair(true, false), std::pair(false, false)}) {
        std::set<std::string> expected;
        for (const auto& row : test::dataRows("menu_entries.txt"))
            if (row[0] == "menu" ? menu : sendTo)
                expected.insert(row[1] + ' ' + row[2]);
        update(menu, sendTo);
        EXPECT_EQ(files(), expected);
    }
    EXPECT_FALSE(fs::exists(folder / "data/nemo")) << "made for the entries";
    for (const char* name : {"config/nemo", "data/dolphin"})
        fs::remove(folder / name);
    update(true, true);
    EXPECT_FALSE(fs::exists(folder / Menu) || fs::exists(folder / Nemo)) << "for managers that are not there";
    writeProgram("bin/nemo", "");
    update(true, true);
    EXPECT_TRUE(fs::exists(folder / Nemo)) << "yet to be started";
}

TEST_F(ShellIntegrationTest, EntriesStartTheProgram)
{
    update(true, true);
    expectIn(Menu, "Exec=" + execArgument(program) + " -decrypt -start -ifile %F\n");
    expectIn(SendTo, "Exec=" + execArgument(program) + " -ifile %F\n");
    expectIn("data/nemo/actions/quillet-encrypt.nemo_action", "Name=Encrypt with Quillet\n");
    expectIn(Nemo, "& program\\; {marker} 100%;\n");

    // Scripts go by the manager's URIs; for files of another machine by the paths that they have on this one.
    writeProgram(program, "printf '%s|' \"$PWD\" \"$@\" >>'" + (folder / "arguments") + "'");
    const std::string script = "'" + (folder / "config/caja/scripts/Encrypt with Quillet") + "' a b";
    const test::Environment tools("PATH", (folder / "bin:/usr/bin:/bin").c_str());
    const std::array<const char*, 3> cases[] = {
        {"file:///a%25f%0A*\nfile:///-b\n", "wrong", "file:///a%25f%0A*|file:///-b|"},
        {"sftp://host/c d\n", "/run/c d\n/e*c\n", "/run/c d|/e*c|"},
    };
    for (const auto& [givenUris, givenPaths, arguments] : cases) {
        const test::Environment uris("CAJA_SCRIPT_SELECTED_URIS", givenUris);
        const test::Environment paths("CAJA_SCRIPT_SELECTED_FILE_PATHS", givenPaths);
        ASSERT_EQ(std::system(script.c_str()), 0);
        EXPECT_EQ(read("arguments"), "/|-encrypt|-start|-ifile|"s + arguments);
        fs::remove(folder / "arguments");
    }
    fs::remove(program);
    writeProgram("bin/zenity", "echo \"$4\" >>'" + (folder / "told") + "'");
    ASSERT_EQ(std::system(script.c_str()), 0);
    expectIn("told", "Quillet is not at " + program + " any more.");
}

/// The actions of others, in a file that the user has: they keep their text and their place.
TEST_F(ShellIntegrationTest, SharesThunarsActionsWithTheUser)
{
    const std::string theirs = "<action>\n <name>Mine &amp; \xe6\x9a\x97</name> <!-- kept -->\n</action>\n";
    const auto file = [](const std::string& actions) {
        return "<?xml version=\"1.0\"?>\n<actions>\n" + actions + "</actions>\n";
    };
    folder.write("system/Thunar/uca.xml", file("<action><name>System</name></action>\n"));
    for (const std::string& start : {file(theirs), std::string()}) {
        fs::remove(folder / Actions);
        if (!start.empty())
            folder.write(Actions, start);
        update(true, true);
        const std::string ours = read(Actions);
        expectIn(Actions, start.empty() ? "System" : theirs);
        expectIn(Actions, "program; {marker} 100%%'");
        // The user changes things: the order, and one of ours.
        std::string moved = ours;
        const std::size_t end = moved.find("</actions>");
        moved.insert(end, theirs);
        moved.replace(moved.find("-decrypt -start"), 15, "-old");
        folder.write(Actions, moved);
        update(true, true);
        std::string mended = ours;
        EXPECT_EQ(read(Actions), mended.insert(end, theirs)); // ours before theirs still
        folder.write(Actions, ours);
        update(false, true);
        EXPECT_EQ(read(Actions), start); // a file that was not there is gone
    }
    fs::remove(folder / Actions);
    fs::create_directories(folder / "config/Thunar");
    fs::copy(folder / "system/Thunar/uca.xml", folder / "mine.xml");
    fs::create_symlink(folder / "mine.xml", folder / Actions);
    update(true, true);
    update(false, true);
    EXPECT_TRUE(fs::is_symlink(folder / Actions));
    fs::remove(folder / Actions);
    for (const char* broken : {"<actions><action></actions>", "<other/>", "", "<actions>\xe9</actions>"}) {
        fs::create_directories(folder / "config/Thunar");
        folder.write(Actions, broken);
        update(true, true);
        update(false, true);
        EXPECT_EQ(read(Actions), broken);
    }
}

TEST_F(ShellIntegrationTest, ABuildLeavesTheInstalledProgramsEntries)
{
    folder.write("build/CMakeCache.txt", "");
    folder.write(program, "");
    update(true, true);
    const std::string before = read(Menu) + read(Actions);
    const std::string installed = std::exchange(program, folder / "build/bin/quillet");
    update(true, true);
    update(false, false);
    EXPECT_EQ(read(Menu) + read(Actions), before);
    fs::remove(installed); // what they start is gone
    update(true, true);
    expectIn(Menu, program);
    expectIn(Actions, program);
}

TEST_F(ShellIntegrationTest, TouchesOnlyWhatIsOursAndChanged)
{
    update(true, true);
    const auto longAgo = fs::file_time_type::clock::now() - std::chrono::hours(1);
    const std::string menu = folder / Menu;
    const std::string ours = read(Menu);
    fs::last_write_time(menu, longAgo);
    update(true, true);
    EXPECT_EQ(fs::last_write_time(menu), longAgo);

    fs::permissions(menu, fs::perms(0600));
    update(true, true);
    EXPECT_EQ(fs::status(menu).permissions(), fs::perms(0755)) << "it wouldn't show without";
    folder.write(menu, OwnedFile::head("/old") + "from an older version\n");
    update(true, true);
    EXPECT_EQ(read(Menu), ours);

    const auto turn = [this] {
        for (const bool contextMenu : {true, false})
            update(contextMenu, true);
    };
    for (const std::string& theirs : {"someone else's"s, "a copy of " + OwnedFile::head("/old")}) {
        folder.write(menu, theirs);
        turn();
        EXPECT_EQ(read(Menu), theirs);
    }
    fs::remove(menu);
    fs::create_symlink(folder / SendTo, menu);
    turn();
    EXPECT_TRUE(fs::is_symlink(menu));
}

} // namespace
