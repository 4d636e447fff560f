#include "io/PathCheck.h"
#include "lib/platform/File.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

using namespace tessaly::io;
namespace fs = std::filesystem;

TEST(PathCheck, TellsWhatStandsThereAndChangesNothing)
{
    const test::TempFolder folder;
    folder.write("file", "data");
    folder.write("other", "");
    fs::create_directory(folder / "folder");
    fs::create_symlink("file", folder / "link");
    fs::create_symlink("nowhere", folder / "dangling");
    fs::create_symlink("other", folder / "linkToOther");
    fs::create_hard_link(folder / "file", folder / "hard");
    ASSERT_EQ(::mkfifo((folder / "fifo").c_str(), 0600), 0);
    const std::tuple<const char*, InputCheck, OutputCheck> rows[] = {
        {"new", InputCheck::NotFound, OutputCheck::Free},
        {"other", InputCheck::Usable, OutputCheck::Exists},
        {"file", InputCheck::Usable, OutputCheck::MatchesInput},
        {"FILE", InputCheck::NotFound, OutputCheck::MatchesInput},
        {"folder/../file", InputCheck::Usable, OutputCheck::MatchesInput},
        {"link", InputCheck::Usable, OutputCheck::MatchesInput},
        {"hard", InputCheck::Usable, OutputCheck::MatchesInput},
        {"folder", InputCheck::NotRegular, OutputCheck::NotRegular},
        {"fifo", InputCheck::NotRegular, OutputCheck::NotRegular},
        {"/dev/null", InputCheck::NotRegular, OutputCheck::NotRegular},
        {"dangling", InputCheck::NotFound, OutputCheck::NotRegular},
        {"linkToOther", InputCheck::Usable, OutputCheck::NotRegular},
        {"nofolder/new", InputCheck::NotFound, OutputCheck::NoFolder},
        {"other/new", InputCheck::NotFound, OutputCheck::NoFolder},
    };
    for (const auto& [name, asInput, asOutput] : rows) {
        EXPECT_EQ(checkInput(folder.at(name)), asInput) << name;
        EXPECT_EQ(checkOutput(folder.at("file"), folder.at(name)), asOutput) << name;
    }
    EXPECT_EQ(checkOutput(folder.at("file"), "a name in the working folder"), OutputCheck::Free);
    EXPECT_FALSE(fs::exists(folder / "new"));
    EXPECT_FALSE(tessaly::platform::removeFile(folder / "file" + std::string("\0x", 2)).ok());
    EXPECT_TRUE(fs::exists(folder / "file")) << "no half of a name removes it";
}

TEST(SamePath, IgnoresLetterCaseInEveryLanguage)
{
    EXPECT_TRUE(samePath("/a/Straße/ÄÖ", "/A/./b/../straße/äö"));
    EXPECT_TRUE(samePath("/ФАЙЛ", "/файл"));
    EXPECT_FALSE(samePath("/a/b", "/a/c"));
    EXPECT_TRUE(samePath("file", fs::current_path() / "FILE"));
}

} // namespace
