#include "io/PathCheck.h"
#include "lib/platform/File.h"
#include "support/TempFolder.h"
#include "support/Walk.h"

namespace {

using namespace tessaly;
using platform::pathFromNative;
namespace fs = std::filesystem;

TEST(PathCheck, TellsWhatStandsThereAndChangesNothing)
{
    constexpr const char* Inputs[] = {"usable", "not found", "not regular"};
    constexpr const char* Outputs[] = {"free", "exists", "matches input", "not regular", "no folder"};
    const test::TempFolder folder;
    folder.write("file", "data");
    folder.write("other", "");
    fs::create_directory(folder / "folder");
    fs::create_hard_link(folder / "file", folder / "hard");
    const auto at = [&](const std::string& name) { return folder.path() / pathFromNative(name); };
    const auto link = [&](const std::string& text) {
        const auto [name, target] = test::halves(text);
        fs::create_symlink(target, folder / name);
    };
    const auto check = [&](const std::string& name) {
        const auto input = static_cast<std::size_t>(io::checkInput(at(name)));
        const auto output = static_cast<std::size_t>(io::checkOutput(folder.at("file"), at(name)));
        return std::string(Inputs[input]) + " / " + Outputs[output];
    };
    const auto compare = [](const std::string& text) {
        const auto [first, second] = test::halves(text);
        return io::samePath(pathFromNative(first), pathFromNative(second)) ? "yes" : "no";
    };
    const auto remove = [&](const std::string& name) {
        return platform::removeFile(at(name)).ok() ? "ok" : "refused";
    };
    test::walk(PATHS, {{"link", link}, {"path", check}, {"same", compare}, {"removal", remove}});
    EXPECT_EQ(io::checkOutput(folder.at("file"), "a name in the working folder"), io::OutputCheck::Free);
    EXPECT_TRUE(io::samePath("file", fs::current_path() / "FILE"));
    EXPECT_FALSE(fs::exists(folder / "new"));
}

} // namespace
