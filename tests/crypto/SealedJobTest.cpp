#include "crypto/Jobs.h"
#include "crypto/job/AlgorithmSearch.h"
#include "crypto/sealed/SealedFormat.h"
#include "support/DataRows.h"

namespace {

using namespace test;
using namespace tessaly::crypto;
namespace fs = std::filesystem;

std::string text(const Bytes& bytes)
{
    return {bytes.begin(), bytes.end()};
}

using SealedJob = Jobs;

TEST_F(SealedJob, FilesOfTheIndependentWriterAreOpened)
{
    for (const Row& row : dataRows("sealed.txt")) {
        job.emplace(row.at(0));
        password = text(fromHex(row.at(1)));
        byPassword = !password.empty();
        if (!byPassword) {
            job->key = secret(fromHex(row.at(2)));
            job->iv = secret(fromHex(row.at(3)));
        }
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
            SCOPED_TRACE(std::string(algorithm.name) + ", way " + std::to_string(way) + ", " +
                         std::to_string(size));
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

/// Whatever is changed or cut, nothing of the output is left.
TEST_F(SealedJob, DamageLeavesNoOutput)
{
    byPassword = false;
    folder.write("plain", text(noise(2 * PieceSize)));
    ASSERT_TRUE(encrypt("plain", "sealed").done());
    const std::string whole = readFile(folder / "sealed");
    const auto expectRefused = [&](std::size_t size, std::size_t changed, err::Code code) {
        std::string file = whole;
        file.resize(size);
        if (changed < size)
            file[changed] ^= 0x40;
        folder.write("changed", file);
        EXPECT_EQ(decrypt("changed", "out").result, CryptoResult(code)) << size << ", " << changed;
        EXPECT_FALSE(fs::exists(folder / "out"));
    };
    constexpr std::size_t Second = SealSaltSize + PieceSize + TagSize;
    for (const std::size_t at : {0UL, 31UL, 32UL, 88UL, 40000UL, Second - TagSize, Second - 1})
        expectRefused(whole.size(), at, err::CheckValueDiffers);
    for (const std::size_t at : {Second, Second + 40000, Second + SealedPieceSize, whole.size() - 1})
        expectRefused(whole.size(), at, err::SealBroken);
    for (const std::size_t size : {1UL, 47UL, 49UL, 55UL})
        expectRefused(size, size, err::InputTooShort);
    for (const std::size_t size : {48UL, 56UL, 104UL, 105UL, Second - 1, Second, Second + TagSize})
        expectRefused(size, size, err::CheckValueDiffers);
    for (const std::size_t size :
         {Second + TagSize + 1, Second + SealedPieceSize, whole.size() - 1, whole.size() + 1})
        expectRefused(size, size, err::SealBroken);
    job->key[0] ^= 1;
    expectRefused(whole.size(), whole.size(), err::CheckValueDiffers);
    job->key.clear();
    EXPECT_EQ(encrypt("plain", "out").result, CryptoResult(err::KeyLengthDiffers));
}

TEST_F(SealedJob, AWrongPasswordIsToldAfterBothFormatsAndAStopBeforeTheSecond)
{
    folder.write("plain", text(noise(1000)));
    ASSERT_TRUE(encrypt("plain", "sealed").done() && encrypt("plain", "plainly", false).done());
    password = "wrong";
    for (const char* file : {"sealed", "plainly"}) {
        const FileJobOutcome outcome = decrypt(file, "out");
        EXPECT_EQ(outcome.result, CryptoResult(err::CheckValueDiffers));
        EXPECT_FALSE(outcome.sealed);
        EXPECT_EQ(watch.calls, "sd");
    }
    password = "secret";
    watch.cancelAfter = 'd';
    for (const FileJobOutcome& outcome : {encrypt("plain", "out"), decrypt("sealed", "out")})
        EXPECT_TRUE(outcome.cancelled && outcome.result.ok() && !outcome.outputDeleted);
    watch.cancelAfter = ' ';
    watch.questions = 0;
    watch.cancelAtQuestion = 2; // while the key is made
    EXPECT_TRUE(encrypt("plain", "out").cancelled);
    EXPECT_EQ(watch.calls, "d");
    EXPECT_FALSE(fs::exists(folder / "out"));
}

TEST_F(SealedJob, TheSearchTellsWhereThereIsNothingToFind)
{
    job.emplace("Kalyna-512");
    folder.write("plain", "x");
    folder.write("empty", "");
    folder.write("short", std::string(55, 'x'));
    folder.write("foreign", std::string(4000, 'x'));
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
