#include "io/PathCheck.h"
#include "lib/platform/Path.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace {

using namespace tessaly::io;
namespace fs = std::filesystem;

TEST(PathCheck, TellsWhatStandsThere)
{
    const test::TempFolder folder;
    folder.write("file", "data");
    folder.write("other", "");
    fs::create_directory(folder / "folder");
    fs::create_hard_link(folder / "file", folder / "hard");
    const struct
    {
        const wchar_t* name;
        InputCheck asInput;
        OutputCheck asOutput;
    } rows[] = {
        {L"new", InputCheck::NotFound, OutputCheck::Free},
        {L"other", InputCheck::Usable, OutputCheck::Exists},
        {L"file", InputCheck::Usable, OutputCheck::MatchesInput},
        {L"FILE", InputCheck::Usable, OutputCheck::MatchesInput},
        {LR"(folder\..\file)", InputCheck::Usable, OutputCheck::MatchesInput},
        {L"folder/../file", InputCheck::Usable, OutputCheck::MatchesInput},
        {L"hard", InputCheck::Usable, OutputCheck::MatchesInput},
        {L"folder", InputCheck::NotRegular, OutputCheck::NotRegular},
        {L"NUL", InputCheck::NotRegular, OutputCheck::NotRegular},
        {L"com1.txt", InputCheck::NotRegular, OutputCheck::NotRegular},
        {L"file:stream", InputCheck::NotRegular, OutputCheck::NotRegular},
        {L"file. ", InputCheck::NotRegular, OutputCheck::NotRegular},
        {L"fi*", InputCheck::NotRegular, OutputCheck::NotRegular},
        {LR"(nofolder\new)", InputCheck::NotFound, OutputCheck::NoFolder},
        {LR"(other\new)", InputCheck::NotFound, OutputCheck::NoFolder},
    };
    for (const auto& row : rows) {
        const fs::path path = folder.path() / row.name;
        EXPECT_EQ(checkInput(path), row.asInput) << tessaly::platform::nativeText(row.name);
        EXPECT_EQ(checkOutput(folder.at("file"), path), row.asOutput)
            << tessaly::platform::nativeText(row.name);
    }
    EXPECT_TRUE(samePath(LR"(C:\a\ÄÖ)", L"c:/A/./b/../äö"));
    EXPECT_FALSE(samePath(LR"(C:\a)", LR"(D:\a)"));
}

} // namespace
