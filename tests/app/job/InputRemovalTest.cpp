#include "app/job/InputRemoval.h"
#include "app/job/SEncryptData.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <dlfcn.h>
#include <filesystem>
#include <functional>
#include <unistd.h>
#include <utility>

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

crypto::JobFile opened(const fs::path& path)
{
    const auto place = std::make_shared<io::FilePlace>();
    EXPECT_TRUE(place->open(path).ok());
    return {place, platform::fileStatus(path)};
}

/// Another folder with the same names takes the place of the one that the job has worked in.
void swapFolder(const test::TempFolder& dir)
{
    const fs::path moved = dir.path().string() + "-moved";
    fs::rename(dir.path(), moved);
    fs::copy(moved, dir.path());
    fs::remove_all(moved);
}

/// The next removal fails as on a disk that has become read-only.
bool isReadOnly = false;

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
    {"sealed",
     [](auto& dir, auto& data) {
         dir.write("out", std::string(64 + 48, 'x'));
         data.outcome.output = opened(dir.at("out"));
         data.outcome.sealed = true;
     },
     {}},
    {"sealed, without its tag", [](auto&, auto& data) { data.outcome.sealed = true; },
     KeepReason::OutputDiffers},
    {"disk read-only", [](auto&, auto&) { isReadOnly = true; }, {}},
    {"folder swapped", [](auto& dir, auto&) { swapFolder(dir); }, KeepReason::OutputDiffers},
};

TEST(InputRemovalTest, RemovesOnlyWhatIsSafelyEncrypted)
{
    for (const Case& c : Cases) {
        SCOPED_TRACE(c.name);
        const test::TempFolder folder;
        SEncryptData data;
        data.selection = DefaultAlgSelection;
        folder.write("in", "plain");
        folder.write("out", std::string(64, 'x'));
        data.outcome.input = opened(folder.at("in"));
        data.outcome.output = opened(folder.at("out"));
        c.happens(folder, data);
        const InputRemoval removal = removeInput(data);
        const bool failed = std::exchange(isReadOnly, false);
        EXPECT_EQ(removal.kept, c.kept);
        EXPECT_EQ(removal.error.ok(), !failed);
        EXPECT_EQ(removal.removed, !c.kept && !failed);
        EXPECT_EQ(fs::exists(folder / "in"), c.kept || failed);
    }
}

TEST(InputRemovalTest, TellsTheReason)
{
    const std::pair<KeepReason, const char*> rows[] = {
        {KeepReason::NotEncrypted, "."},
        {KeepReason::SymbolicLink, ": it is a symbolic link."},
        {KeepReason::HardLinks, ": it has another name (hard link)."},
        {KeepReason::Changed, ": it has changed since it was encrypted."},
        {KeepReason::OutputDiffers, ": the output file is not what was written."},
    };
    for (const auto& [reason, text] : rows)
        EXPECT_EQ(keptText(reason).toStdString(), std::string("The input file has been kept") + text);
}

} // namespace

/// Stands before the library's in the whole test program.
extern "C" [[gnu::used]] int unlinkat(int folder, const char* name, int flags)
{
    static const auto next = reinterpret_cast<decltype(&unlinkat)>(::dlsym(RTLD_NEXT, "unlinkat"));
    if (!isReadOnly)
        return next(folder, name, flags);
    errno = EROFS;
    return -1;
}
