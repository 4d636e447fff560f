#include "app/job/InputRemoval.h"
#include "app/job/SEncryptData.h"
#include "support/SystemCall.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <functional>
#include <optional>

using namespace thisapp;
using namespace tessaly;
namespace fs = std::filesystem;

namespace {

/// Puts a copy of the same time in the file's place.
void replace(const std::string& path)
{
    fs::rename(path, path + ".old");
    fs::copy(path + ".old", path);
    fs::last_write_time(path, fs::last_write_time(path + ".old"));
}

crypto::JobFile openedFile(const fs::path& path)
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

TEST(InputRemovalTest, RemovesOnlyWhatIsSafelyEncrypted)
{
    const test::TempFolder dir;
    SEncryptData data;
    std::optional<test::SystemCall> readOnly;
    const auto out = dir / "out", in = dir / "in";
    using enum KeepReason;
    struct
    {
        const char* name;
        std::function<void()> happens; ///< between the end of the encryption and the removal
        std::optional<KeepReason> kept;
    } const cases[] = {
        {"nothing", [] {}, {}},
        {"decryption", [&] { data.operation = Operation::Decrypt; }, NotEncrypted},
        {"cancelled", [&] { data.outcome.cancelled = true; }, NotEncrypted},
        {"failed", [&] { data.outcome.result = err::Busy; }, NotEncrypted},
        {"output gone", [&] { fs::remove(out); }, OutputDiffers},
        {"output cut", [&] { fs::resize_file(out, 63); }, OutputDiffers},
        {"output replaced", [&] { replace(out); }, OutputDiffers},
        {"input grown", [&] { dir.write("in", "longer"); }, Changed},
        {"input touched", [&] { fs::last_write_time(in, {}); }, Changed},
        {"input replaced", [&] { replace(in); }, Changed},
        {"input behind a link",
         [&] {
             fs::rename(in, dir / "real");
             fs::create_symlink(dir / "real", in);
         },
         SymbolicLink},
        {"input with a twin", [&] { fs::create_hard_link(in, dir / "twin"); }, HardLinks},
        {"sealed",
         [&] {
             dir.write("out", std::string(64 + 48, 'x'));
             data.outcome.output = openedFile(out);
             data.outcome.sealed = true;
         },
         {}},
        {"sealed, without its tag", [&] { data.outcome.sealed = true; }, OutputDiffers},
        {"disk read-only", [&] { readOnly.emplace("unlinkat", EROFS); }, {}},
        {"folder swapped", [&] { swapFolder(dir); }, OutputDiffers},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        for (const auto& entry : fs::directory_iterator(dir.path()))
            fs::remove(entry);
        dir.write("in", "plain");
        dir.write("out", std::string(64, 'x'));
        data = SEncryptData();
        data.selection = DefaultAlgSelection;
        data.outcome.input = openedFile(in);
        data.outcome.output = openedFile(out);
        c.happens();
        const InputRemoval removal = removeInput(data);
        const bool failed = readOnly.has_value();
        readOnly.reset();
        EXPECT_EQ(removal.kept, c.kept);
        EXPECT_EQ(removal.error.ok(), !failed);
        EXPECT_EQ(removal.removed, !c.kept && !failed);
        EXPECT_EQ(fs::exists(in), c.kept || failed);
    }
    EXPECT_EQ(keptText(NotEncrypted), "The input file has been kept.");
    EXPECT_EQ(keptText(SymbolicLink), "The input file has been kept: it is a symbolic link.");
    EXPECT_EQ(keptText(HardLinks), "The input file has been kept: it has another name (hard link).");
    EXPECT_EQ(keptText(Changed), "The input file has been kept: it has changed since it was encrypted.");
    EXPECT_EQ(keptText(OutputDiffers),
              "The input file has been kept: the output file is not what was written.");
}

} // namespace
