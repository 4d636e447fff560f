#include "crypto/Jobs.h"
#include "crypto/job/AlgorithmSearch.h"
#include "crypto/sealed/SealedFormat.h"
#include "support/DataRows.h"

namespace {

using namespace test;
using namespace tessaly::crypto;
namespace fs = std::filesystem;

using SealedJob = Jobs;

TEST_F(SealedJob, FilesOfTheIndependentWriterAreOpened)
{
    for (const Row& row : dataRows("sealed.txt")) {
        job.emplace(row.at(0));
        password = text(fromHex(row.at(1)));
        byPassword = !password.empty();
        job->key = secret(fromHex(row.at(2)));
        job->iv = secret(fromHex(row.at(3)));
        cost = {};
        folder.write("sealed", text(fromHex(row.at(5))));
        const FileJobOutcome outcome = decrypt("sealed", "out");
        EXPECT_TRUE(outcome.done() && outcome.sealed);
        EXPECT_EQ(readFile(folder / "out"), text(fromHex(row.at(4))));
    }
}

/// By both kinds of secret, in both formats, of sizes around the ends of the first two pieces, which lie 56
/// bytes later in the plain file of a stream cipher. The wrong algorithm is tried first, too.
TEST_F(SealedJob, FilesOfEveryAlgorithmComeBackAndTellTheirAlgorithm)
{
    constexpr std::size_t Sizes[] = {1, 65479, 65480, 65481, 131016, 131017, 1500000};
    const Job wrong("Blowfish-192"); // the only one with its lengths
    std::size_t next = 0;
    for (const CatalogueEntry& algorithm : catalogue())
        for (const int way : {0, 1, 2, 3}) {
            const std::size_t size = Sizes[next++ % std::size(Sizes)];
            SCOPED_TRACE(testing::Message() << algorithm.name << ", way " << way << ", " << size);
            byPassword = way < 2;
            const bool seal = way % 2 == 1;
            job.emplace(algorithm);
            const std::string plain = text(noise(size));
            folder.write("plain", plain);
            const FileJobOutcome made = encrypt("plain", "encrypted", seal);
            ASSERT_TRUE(made.done() && made.sealed == seal);
            ASSERT_EQ(watch.calls, seal && byPassword ? "dsw" : "sw");
            const std::uint64_t inner = encryptedSize(size, algorithm.record.blockLength);
            ASSERT_EQ(made.output.status.size, seal ? sealedSize(inner) : inner);

            watch.calls.clear();
            const FoundAlgorithm found = findAlgorithm(request("encrypted", "out"), watch);
            ASSERT_TRUE(found.result.ok());
            ASSERT_EQ(found.algorithmId, algorithm.id);
            ASSERT_EQ(watch.calls, seal && byPassword ? "d" : "");
            ASSERT_EQ(found.root.bytes.empty(), !seal);

            FileJobRequest again = request("encrypted", "out");
            SealedRoot root = found.root;
            if (byPassword && algorithm.id != wrong.algorithm.id) {
                const FileJobOutcome failed = run(*wrong.decryptor, again);
                ASSERT_EQ(failed.result, CryptoResult(err::CheckValueDiffers));
                ASSERT_EQ(failed.fittingAlgorithm, algorithm.id);
                ASSERT_EQ(watch.calls, seal ? "sd" : "s") << "one key at the most";
                ASSERT_TRUE(again.password.empty());
                again = request("encrypted", "out");
                root = failed.root;
            }
            again.root = root;
            if (seal)
                again.password = {};
            const FileJobOutcome opened = run(*job->decryptor, again);
            ASSERT_TRUE(opened.done() && opened.sealed == seal);
            ASSERT_EQ(watch.calls, seal ? "ssw" : "sw") << "no further key";
            ASSERT_EQ(readFile(folder / "out"), plain);
        }
}

TEST_F(SealedJob, TheSaltMakesEqualFilesDifferAndAnEmptyOneIsSealedToo)
{
    folder.write("plain", "");
    ASSERT_TRUE(encrypt("plain", "one").done() && encrypt("plain", "two").done());
    EXPECT_NE(readFile(folder / "one"), readFile(folder / "two"));
    EXPECT_EQ(fs::file_size(folder / "one"), sealedSize(0));
    EXPECT_TRUE(decrypt("one", "out").done());
    EXPECT_EQ(watch.calls, "sdsw");

    byPassword = false;
    job->iv.push_back(0);
    EXPECT_EQ(encrypt("plain", "none").result, CryptoResult(err::IvLengthDiffers));
}

/// Whatever is changed or cut, nothing of the output is left. The second of its three pieces begins at 65584.
TEST_F(SealedJob, DamageLeavesNoOutput)
{
    byPassword = false;
    folder.write("plain", text(noise(2 * PieceSize)));
    ASSERT_TRUE(encrypt("plain", "sealed").done());
    const std::string whole = readFile(folder / "sealed");
    ASSERT_EQ(whole.size(), 131216U);
    for (const Row& row : dataRows("damage.txt")) {
        std::string file = whole;
        file.resize(std::stoul(row.at(0)));
        if (!row.at(1).empty())
            file[std::stoul(row[1])] ^= 0x40;
        folder.write("changed", file);
        EXPECT_EQ(decrypt("changed", "out").result, CryptoResult(err::Code(std::stoul(row.at(2)))))
            << testing::PrintToString(row);
        EXPECT_FALSE(fs::exists(folder / "out"));
    }
    job->key[0] ^= 1;
    EXPECT_EQ(decrypt("sealed", "out").result, CryptoResult(err::CheckValueDiffers));
    job->key.clear();
    EXPECT_EQ(encrypt("plain", "out").result, CryptoResult(err::KeyLengthDiffers));
    EXPECT_FALSE(fs::exists(folder / "out"));
}

/// The last pieces and their tags are written when all else is done.
TEST_F(SealedJob, EndsInSuccessOnlyWhenAllIsWritten)
{
    byPassword = false;
    folder.write("plain", text(noise(3000000)));
    int writes = 0;
    for (int failing = 0; failing <= writes; ++failing) {
        MemoryOutput sink({.failAtCall = failing});
        FileJobRequest made = request("plain", "");
        made.seal = true;
        made.sink = &sink;
        const FileJobOutcome outcome = run(*job->encryptor, made);
        EXPECT_EQ(outcome.result,
                  failing == 0 ? CryptoResult() : CryptoResult(err::WriteStreamFailed, StreamFault));
        writes = std::max(writes, sink.calls);
    }
    EXPECT_GT(writes, 1);
}

TEST_F(SealedJob, AWrongPasswordIsToldAfterBothFormatsAndAStopBeforeTheSecond)
{
    folder.write("plain", text(noise(1000)));
    ASSERT_TRUE(encrypt("plain", "sealed").done() && encrypt("plain", "plainly", false).done());
    password = "wrong";
    for (const char* file : {"sealed", "plainly"}) {
        const FileJobOutcome outcome = decrypt(file, "out");
        EXPECT_EQ(outcome.result, CryptoResult(err::CheckValueDiffers));
        EXPECT_TRUE(!outcome.sealed && watch.calls == "sd");
    }
    password = "secret";
    watch.cancelAfter = 'd';
    for (const FileJobOutcome& outcome : {encrypt("plain", "out"), decrypt("sealed", "out")})
        EXPECT_TRUE(outcome.cancelled && outcome.result.ok() && !outcome.outputDeleted);
    watch = {};
    watch.cancelAtQuestion = 2; // while the key is made
    EXPECT_TRUE(encrypt("plain", "out").cancelled);
    EXPECT_EQ(watch.calls, "d");
    EXPECT_FALSE(fs::exists(folder / "out"));
}

TEST_F(SealedJob, TheSearchTellsWhereThereIsNothingToFind)
{
    job.emplace("Kalyna-512");
    const std::pair<const char*, std::size_t> files[] = {
        {"plain", 1}, {"empty", 0}, {"short", 55}, {"foreign", 4000}};
    for (const auto& [name, size] : files)
        folder.write(name, std::string(size, 'x'));
    ASSERT_TRUE(encrypt("plain", "encrypted").done());
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
    EXPECT_TRUE(run(*job->decryptor, other).done());
    EXPECT_EQ(watch.calls, "sdsw");

    watch.calls = watch.cancelAfter = 'd';
    const FoundAlgorithm stopped = findAlgorithm(request("encrypted", "out"), watch);
    EXPECT_TRUE(stopped.cancelled && stopped.result.ok() && !stopped.algorithmId);

    byPassword = false;
    job->key.pop_back(); // a length that none takes
    EXPECT_EQ(resultOf("encrypted"), CryptoResult(err::CheckValueDiffers));
}

} // namespace
