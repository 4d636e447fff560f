#include "app/job/InputRemoval.h"
#include "app/job/SEncryptData.h"
#include "support/DataRows.h"
#include "support/SystemCall.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <tuple>

using namespace thisapp;
using namespace tessaly;
namespace fs = std::filesystem;

namespace {

crypto::JobFile openedFile(const fs::path& path)
{
    const auto place = std::make_shared<io::FilePlace>();
    EXPECT_TRUE(place->open(path).ok());
    return {place, platform::fileStatus(path)};
}

TEST(InputRemovalTest, RemovesOnlyWhatIsSafelyEncrypted)
{
    for (const auto& row : test::dataRows("removals.txt")) {
        const auto& [job, happens, told] = std::tie(row[0], row[1], row[2]);
        SCOPED_TRACE(job + ": " + happens);
        const test::TempFolder dir;
        dir.write("in", "plain");
        dir.write("out", std::string(job == "sealed" ? 64 + 48 : 64, 'x'));
        SEncryptData data;
        data.operation = job == "decryption" ? Operation::Decrypt : Operation::Encrypt;
        data.selection = DefaultAlgSelection;
        data.outcome.cancelled = job == "cancelled";
        data.outcome.sealed = job.starts_with("sealed");
        if (job == "failed")
            data.outcome.result = err::Busy;
        data.outcome.input = openedFile(dir / "in");
        data.outcome.output = openedFile(dir / "out");
        ASSERT_EQ(std::system(("cd " + dir.path().string() + " && " + happens).c_str()), 0);
        const bool fails = job == "read-only disk";
        const test::SystemCall removing("unlinkat", fails ? EROFS : test::SystemCall::Works);
        test::SystemCall::flushed.clear();
        const InputRemoval removal = removeInput(data);
        EXPECT_EQ(removal.kept ? keptText(*removal.kept).toStdString() : "", told);
        EXPECT_EQ(removal.error.ok(), !fails);
        EXPECT_EQ(removal.removed, told.empty() && !fails);
        EXPECT_EQ(fs::exists(dir / "in"), !removal.removed);
        EXPECT_EQ(test::SystemCall::flushed.size(), removal.removed ? 1U : 0U) << "it may come back else";
    }
}

} // namespace
