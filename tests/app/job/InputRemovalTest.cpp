#include "app/job/InputRemoval.h"
#include "app/job/SEncryptData.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

using namespace thisapp;
using namespace tessaly;
namespace fs = std::filesystem;

namespace {

struct Case
{
    const char* name;
    /// What happens between the end of the encryption and the removal.
    std::function<void(const test::TempFolder&, SEncryptData&)> happens;
    std::optional<KeepReason> kept;
};

/// Puts a copy of the same time in the file's place.
void replace(const std::string& path)
{
    fs::rename(path, path + ".old");
    fs::copy(path + ".old", path);
    fs::last_write_time(path, fs::last_write_time(path + ".old"));
}

const Case Cases[] = {
    {"nothing", [](auto&, auto&) {}, {}},
    {"decryption", [](auto&, auto& data) { data.operation = Operation::Decrypt; }, KeepReason::NotEncrypted},
    {"cancelled", [](auto&, auto& data) { data.outcome.cancelled = true; }, KeepReason::NotEncrypted},
    {"failed", [](auto&, auto& data) { data.outcome.result = err::Busy; }, KeepReason::NotEncrypted},
    {"output gone", [](auto& dir, auto&) { fs::remove(dir / "out"); }, KeepReason::OutputDiffers},
    {"output cut", [](auto& dir, auto&) { fs::resize_file(dir / "out", 63); }, KeepReason::OutputDiffers},
    {"output replaced", [](auto& dir, auto&) { replace(dir / "out"); }, KeepReason::OutputDiffers},
    {"input grown", [](auto& dir, auto&) { dir.write("in", "longer"); }, KeepReason::Changed},
    {"input touched", [](auto& dir, auto&) { fs::last_write_time(dir / "in", {}); }, KeepReason::Changed},
    {"input replaced", [](auto& dir, auto&) { replace(dir / "in"); }, KeepReason::Changed},
    {"input behind a link",
     [](auto& dir, auto&) {
         fs::rename(dir / "in", dir / "real");
         fs::create_symlink(dir / "real", dir / "in");
     },
     KeepReason::SymbolicLink},
    {"input with a twin", [](auto& dir, auto&) { fs::create_hard_link(dir / "in", dir / "twin"); },
     KeepReason::HardLinks},
};

TEST(InputRemovalTest, RemovesOnlyWhatIsSafelyEncrypted)
{
    for (const Case& c : Cases) {
        SCOPED_TRACE(c.name);
        const test::TempFolder folder;
        SEncryptData data;
        data.selection = DefaultAlgSelection;
        data.inputPath = folder / "in";
        data.outputPath = folder / "out";
        data.outcome.input = platform::fileStatus(folder.write("in", "plain"));
        data.outcome.output = platform::fileStatus(folder.write("out", std::string(64, 'x')));
        c.happens(folder, data);
        const InputRemoval removal = removeInput(data);
        EXPECT_EQ(removal.kept, c.kept);
        EXPECT_EQ(removal.removed(), !c.kept);
        EXPECT_EQ(fs::exists(folder / "in"), c.kept.has_value());
    }
}

} // namespace
