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
    fs::create_hard_link(folder / "file", folder / "hard");
    ASSERT_EQ(::mkfifo((folder / "fifo").c_str(), 0600), 0);
    const struct
    {
        const char* name;
        InputCheck asInput;
        OutputCheck asOutput;
    } rows[] = {
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
    };
    for (const auto& row : rows) {
        EXPECT_EQ(checkInput(folder.wide(row.name)), row.asInput) << row.name;
        EXPECT_EQ(checkOutput(folder.wide("file"), folder.wide(row.name)), row.asOutput) << row.name;
    }
    EXPECT_FALSE(fs::exists(folder / "new"));
    EXPECT_FALSE(tessaly::platform::removeFile(folder.wide("file").append(1, L'\0').append(L"x")).ok());
    EXPECT_TRUE(fs::exists(folder / "file")) << "no half of a name removes it";
}

TEST(SamePath, IgnoresLetterCaseInEveryLanguage)
{
    EXPECT_TRUE(samePath(L"/a/Straße/ÄÖ", L"/A/./b/../straße/äö"));
    EXPECT_TRUE(samePath(L"/ФАЙЛ", L"/файл"));
    EXPECT_FALSE(samePath(L"/a/b", L"/a/c"));
    EXPECT_TRUE(samePath(L"file", fs::current_path().wstring() + L"/FILE"));
}

} // namespace
