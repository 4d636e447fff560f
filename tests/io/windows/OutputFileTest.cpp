#include "io/OutputFile.h"
#include "support/DataRows.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace {

using namespace tessaly;
using io::OutputFile;
using Existing = OutputFile::Existing;
namespace fs = std::filesystem;

class OutputFileTest : public testing::TestWithParam<OutputFile::Kind>
{
protected:
    std::unique_ptr<OutputFile> begin(const char* name = "out")
    {
        const auto place = std::make_shared<io::FilePlace>();
        EXPECT_TRUE(place->open(folder.at(name)).ok());
        auto file = std::make_unique<OutputFile>(GetParam());
        EXPECT_TRUE(file->open(place, platform::Access::ownerOnly(), 1 << 20).ok());
        EXPECT_EQ(file->write("data", 4), 4);
        return file;
    }
    std::vector<fs::path> hidden() const
    {
        std::vector<fs::path> found;
        for (const auto& entry : fs::directory_iterator(folder.path()))
            if (entry.path().filename().wstring().starts_with(L".quillet-partial-"))
                found.push_back(entry.path());
        return found;
    }
    std::string text(const char* name) const { return test::readFile(folder / name); }

    test::TempFolder folder;
};

TEST_P(OutputFileTest, AppearsWholeOrNotAtAll)
{
    for (const test::Row& row : test::dataRows("outputs_windows.txt")) {
        SCOPED_TRACE(testing::PrintToString(row));
        if (!row.at(0).empty())
            folder.write("out", row[0]);
        auto file = begin();
        const ResultCode result = file->commit(row.at(1) == "keep" ? Existing::Keep : Existing::Replace,
                                               [&row] { return row[1] != "none"; });
        EXPECT_EQ(std::to_string(result.category) + '/' + std::to_string(result.code), row.at(2));
        file.reset();
        EXPECT_EQ(text("out"), row.at(3));
        EXPECT_EQ(hidden(), std::vector<fs::path>());
        EXPECT_EQ(fs::remove(folder / "out"), !row[3].empty());
    }
}

TEST_P(OutputFileTest, IsGoneWhenGivenUp)
{
    const auto file = begin();
    for (const fs::path& path : hidden())
        EXPECT_EQ(test::readFile(path.string()), "") << "nobody can read it meanwhile";
    static_cast<void>(file->discard()); // Wine does not tell that a file will be removed
    EXPECT_EQ(hidden(), std::vector<fs::path>());
    EXPECT_FALSE(fs::exists(folder / "out"));
}

/// As a loss of power leaves them.
TEST_P(OutputFileTest, RemovesWhatWasForsaken)
{
    folder.write(".quillet-partial-1", "part");
    folder.write(".quillet-other", "another's");
    EXPECT_TRUE(begin()->commit(Existing::Keep, [] { return true; }).ok());
    EXPECT_EQ(hidden(), std::vector<fs::path>());
    EXPECT_EQ(text(".quillet-other"), "another's");
}

/// The former file is open, as a program that reads it has it.
TEST_P(OutputFileTest, ReplacesOnlyWhatOthersLet)
{
    constexpr DWORD Reading = FILE_SHARE_READ;
    constexpr DWORD ReadingAndRemoval = FILE_SHARE_READ | FILE_SHARE_DELETE;
    for (const DWORD share : {Reading, ReadingAndRemoval}) {
        folder.write("out", "old");
        const HANDLE reader =
            ::CreateFileW(folder.at("out").c_str(), GENERIC_READ, share, nullptr, OPEN_EXISTING, 0, nullptr);
        ASSERT_NE(reader, INVALID_HANDLE_VALUE);
        const bool replaced = begin()->commit(Existing::Replace, [] { return true; }).ok();
        ::CloseHandle(reader);
        EXPECT_EQ(text("out"), replaced ? "data" : "old");
        EXPECT_TRUE(!replaced || share == ReadingAndRemoval);
        EXPECT_EQ(hidden(), std::vector<fs::path>());
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, OutputFileTest,
                         testing::Values(OutputFile::Kind::Nameless, OutputFile::Kind::Hidden));

} // namespace
