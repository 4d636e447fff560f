#include "io/PathCheck.h"
#include "lib/platform/File.h"
#include "lib/platform/Path.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <sys/stat.h>

namespace {

using namespace tessaly::io;
using tessaly::platform::widePath;

class PathCheck : public testing::Test
{
protected:
    void SetUp() override
    {
        test::writeFile(folder / "file", "data");
        test::writeFile(folder / "other", "");
        std::filesystem::create_directory(folder / "folder");
        std::filesystem::create_symlink("file", folder / "link");
        std::filesystem::create_symlink("other", folder / "otherlink");
        std::filesystem::create_symlink("nowhere", folder / "dangling");
        std::filesystem::create_hard_link(folder / "file", folder / "hard");
        ASSERT_EQ(::mkfifo((folder / "fifo").c_str(), 0600), 0);
    }
    std::wstring wide(const std::string& name) const { return widePath(folder / name); }

    test::TempFolder folder;
};

TEST_F(PathCheck, OutputIsComparedWithWhatStandsThere)
{
    const std::pair<const char*, OutputCheck> rows[] = {
        {"new", OutputCheck::Free},
        {"other", OutputCheck::Exists},
        {"otherlink", OutputCheck::Exists},
        {"file", OutputCheck::MatchesInput},
        {"FILE", OutputCheck::MatchesInput},
        {"folder/../file", OutputCheck::MatchesInput},
        {"link", OutputCheck::MatchesInput},
        {"hard", OutputCheck::MatchesInput},
        {"folder", OutputCheck::NotRegular},
        {"fifo", OutputCheck::NotRegular},
        {"dangling", OutputCheck::NotRegular},
    };
    for (const auto& [name, expected] : rows)
        EXPECT_EQ(checkOutput(wide("file"), wide(name)), expected) << name;
    EXPECT_EQ(checkOutput(wide("file"), L"/dev/null"), OutputCheck::NotRegular);
    EXPECT_FALSE(std::filesystem::exists(folder / "new"));
}

TEST_F(PathCheck, InputIsARegularFile)
{
    const std::pair<const char*, InputCheck> rows[] = {
        {"file", InputCheck::Usable},       {"link", InputCheck::Usable},
        {"new", InputCheck::NotFound},      {"dangling", InputCheck::NotFound},
        {"folder", InputCheck::NotRegular}, {"fifo", InputCheck::NotRegular},
    };
    for (const auto& [name, expected] : rows)
        EXPECT_EQ(checkInput(wide(name)), expected) << name;
    EXPECT_EQ(checkInput(L""), InputCheck::NotFound);
}

TEST_F(PathCheck, AFileIsRemovedByItsWholeNameAlone)
{
    EXPECT_FALSE(tessaly::platform::removeFile(wide("file").append(1, L'\0').append(L"x")).ok());
    EXPECT_TRUE(std::filesystem::exists(folder / "file"));
    EXPECT_TRUE(tessaly::platform::removeFile(wide("file")).ok());
    EXPECT_FALSE(std::filesystem::exists(folder / "file"));
}

TEST(SamePath, IgnoresLetterCaseInEveryLanguage)
{
    EXPECT_TRUE(samePath(L"/a/Straße/ÄÖ", L"/A/./b/../straße/äö"));
    EXPECT_TRUE(samePath(L"/ФАЙЛ", L"/файл"));
    EXPECT_FALSE(samePath(L"/a/b", L"/a/c"));
    EXPECT_TRUE(samePath(L"file", std::filesystem::current_path().wstring() + L"/FILE"));
}

} // namespace
