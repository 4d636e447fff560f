#include "crypto/job/AlgorithmSearch.h"

#include "crypto/Engine.h"
#include "crypto/JobWatch.h"
#include "crypto/sealed/SealedFormat.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace {

using namespace test;
using namespace tessaly::crypto;

class Search : public testing::Test
{
protected:
    FileJobRequest request(const char* from, const char* to) const
    {
        FileJobRequest made;
        made.input = folder.at(from);
        made.output = folder.at(to);
        made.existing = ExistingOutput::ReplaceAtEnd;
        made.passwordMode = byPassword;
        made.password = tessaly::SecretText(byPassword ? "secret" : "");
        made.key = job->key;
        made.iv = job->iv;
        made.cost = {1, 64, 4};
        return made;
    }
    void encrypt(bool seal)
    {
        FileJobRequest made = request("plain", "encrypted");
        made.seal = seal;
        ASSERT_TRUE(runFileJob(*job->encryptor, made, watch).done());
        watch.calls.clear();
    }
    FileJobOutcome decrypt(FileJobRequest made)
    {
        watch.calls.clear();
        return runFileJob(*job->decryptor, made, watch);
    }

    TempFolder folder;
    JobWatch watch;
    std::optional<Job> job;
    bool byPassword = true;
};

/// Of every algorithm, in both formats and by both kinds of secret, under the wrong algorithm at first.
TEST_F(Search, FindsTheAlgorithmOfEveryFile)
{
    const Job wrong("Blowfish-192"); // the only one with its lengths
    for (const CatalogueEntry& entry : catalogue())
        for (const int way : {0, 1, 2, 3}) {
            SCOPED_TRACE(std::string(entry.name) + ", way " + std::to_string(way));
            byPassword = way < 2;
            const bool seal = way % 2 == 1;
            job.emplace(entry);
            // One whole piece, or two.
            folder.write("plain", std::string(entry.id % 2 == 0 ? PieceSize - HeaderSize : 70000, 'x'));
            encrypt(seal);
            const FoundAlgorithm found = findAlgorithm(request("encrypted", "out"), watch);
            ASSERT_TRUE(found.result.ok());
            ASSERT_EQ(found.algorithmId, entry.id);
            ASSERT_EQ(watch.calls, seal && byPassword ? "d" : "");
            ASSERT_EQ(found.root.bytes.empty(), !seal);
            if (!byPassword || entry.id == wrong.algorithm.id)
                continue;

            FileJobRequest made = request("encrypted", "out");
            watch.calls.clear();
            const FileJobOutcome failed = runFileJob(*wrong.decryptor, made, watch);
            ASSERT_EQ(failed.result, CryptoResult(err::CheckValueDiffers));
            ASSERT_EQ(failed.fittingAlgorithm, entry.id);
            ASSERT_EQ(watch.calls, seal ? "sd" : "s") << "one key at the most";
            ASSERT_TRUE(made.password.empty());

            made = request("encrypted", "out");
            made.root = failed.root;
            if (seal)
                made.password = {};
            ASSERT_TRUE(decrypt(std::move(made)).done());
            ASSERT_EQ(watch.calls, seal ? "ssw" : "sw") << "no further key";
        }
}

TEST_F(Search, TellsWhereThereIsNothingToFind)
{
    job.emplace("Kalyna-512");
    folder.write("plain", "x");
    folder.write("empty", "");
    folder.write("short", std::string(55, 'x'));
    folder.write("foreign", std::string(4000, 'x'));
    encrypt(true);
    const auto resultOf = [this](const char* file) {
        FileJobRequest made = request(file, "out");
        made.password = tessaly::SecretText("wrong");
        const FoundAlgorithm found = findAlgorithm(made, watch);
        EXPECT_FALSE(found.algorithmId || found.cancelled);
        return found.result;
    };
    EXPECT_TRUE(resultOf("empty").ok());
    EXPECT_EQ(resultOf("short"), CryptoResult(err::InputTooShort));
    EXPECT_EQ(resultOf("foreign"), CryptoResult(err::CheckValueDiffers));
    EXPECT_EQ(resultOf("missing").module, err::CategorySystem);
    EXPECT_EQ(resultOf("encrypted"), CryptoResult(err::CheckValueDiffers));

    FileJobRequest other = request("encrypted", "out"); // the root of another file is none
    other.root = {SecretBytes(32), SecretBytes(64)};
    EXPECT_TRUE(decrypt(other).done());
    EXPECT_EQ(watch.calls, "sdsw");

    watch.calls = watch.cancelAfter = 'd';
    const FoundAlgorithm stopped = findAlgorithm(request("encrypted", "out"), watch);
    EXPECT_TRUE(stopped.cancelled && stopped.result.ok() && !stopped.algorithmId);

    byPassword = false;
    job->key.pop_back(); // a length that none takes
    EXPECT_EQ(resultOf("encrypted"), CryptoResult(err::CheckValueDiffers));
}

} // namespace
