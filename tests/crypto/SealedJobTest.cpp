#include "crypto/Engine.h"
#include "crypto/JobWatch.h"
#include "crypto/job/FileJob.h"
#include "crypto/sealed/SealedFormat.h"
#include "support/DataRows.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using namespace test;
using namespace tessaly::crypto;
namespace fs = std::filesystem;

std::string text(const Bytes& bytes)
{
    return {bytes.begin(), bytes.end()};
}

class SealedJob : public testing::Test
{
protected:
    FileJobRequest request(const char* from, const char* to) const
    {
        FileJobRequest made;
        made.input = folder.at(from);
        made.output = folder.at(to);
        made.existing = ExistingOutput::ReplaceAtEnd;
        made.passwordMode = byPassword;
        if (byPassword)
            made.password = tessaly::SecretText(password);
        made.key = job->key;
        made.iv = job->iv;
        made.cost = cost;
        return made;
    }
    FileJobOutcome encrypt(const char* from, const char* to, bool seal = true)
    {
        observer.calls.clear();
        FileJobRequest made = request(from, to);
        made.seal = seal;
        return runFileJob(*job->encryptor, made, observer);
    }
    FileJobOutcome decrypt(const char* from, const char* to)
    {
        observer.calls.clear();
        FileJobRequest made = request(from, to);
        return runFileJob(*job->decryptor, made, observer);
    }
    void expectRefused(const Bytes& changed, err::Code code, const std::string& what)
    {
        folder.write("changed", text(changed));
        const FileJobOutcome outcome = decrypt("changed", "out");
        ASSERT_EQ(outcome.result, CryptoResult(code)) << what;
        ASSERT_FALSE(fs::exists(folder / "out")) << what;
    }

    TempFolder folder;
    std::optional<Job> job{"AES-256"};
    bool byPassword = true;
    std::string password = "secret";
    Argon2Cost cost{1, 64, 4};
    JobWatch observer;
};

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

/// Around the ends of the first two pieces, which lie 56 bytes later in the plain file of a stream cipher.
TEST_F(SealedJob, EveryAlgorithmAndSizeComesBack)
{
    for (const std::size_t size : {0UL, 1UL, 65479UL, 65480UL, 65481UL, 131016UL, 131017UL, 3000000UL}) {
        byPassword = !byPassword; // else an even catalogue gives each algorithm the same secret at every size
        for (const CatalogueEntry& algorithm : catalogue()) {
            if (size > 1000000 && algorithm.id % 50 != 0)
                continue; // one of each older family
            SCOPED_TRACE(std::string(algorithm.name) + ", " + std::to_string(size));
            job.emplace(algorithm);
            byPassword = !byPassword;
            const std::string plain = text(noise(size));
            folder.write("plain", plain);
            const FileJobOutcome made = encrypt("plain", "sealed");
            ASSERT_TRUE(made.done() && made.sealed);
            ASSERT_EQ(observer.calls, byPassword ? "dsw" : "sw");
            ASSERT_EQ(made.output.status.size, sealedSize(encryptedSize(size, algorithm.record.blockLength)));
            const FileJobOutcome opened = decrypt("sealed", "out");
            ASSERT_TRUE(opened.done() && opened.sealed);
            ASSERT_EQ(observer.calls, byPassword ? "sdsw" : "ssw");
            ASSERT_EQ(readFile(folder / "out"), plain);
        }
    }
}

TEST_F(SealedJob, TheSaltMakesEqualFilesDifferAndTheAlgorithmMakesKeysDiffer)
{
    folder.write("plain", std::string(1000, 'x'));
    ASSERT_TRUE(encrypt("plain", "one").done() && encrypt("plain", "two").done());
    EXPECT_NE(readFile(folder / "one"), readFile(folder / "two"));
    job.emplace("Camellia-256");
    EXPECT_EQ(decrypt("one", "out").result, CryptoResult(err::CheckValueDiffers));
}

/// Whatever is changed, nothing of the output is left.
TEST_F(SealedJob, DamageLeavesNoOutput)
{
    byPassword = false;
    folder.write("plain", text(noise(2 * PieceSize)));
    ASSERT_TRUE(encrypt("plain", "sealed").done());
    const std::string file = readFile(folder / "sealed");
    const Bytes whole(file.begin(), file.end());
    constexpr std::size_t Second = SealSaltSize + PieceSize + TagSize;
    for (std::size_t at = 0; at < whole.size(); at += at % 100 == 0 ? 1201 : 100 - at % 100) {
        Bytes changed = whole;
        changed[at] ^= 0x40;
        expectRefused(changed, at < Second ? err::CheckValueDiffers : err::SealBroken,
                      "changed at " + std::to_string(at));
        changed.resize(at);
        if (at == 0) // an empty file is the plain format's own
            continue;
        expectRefused(changed,
                      at < HeaderSize && at != 48    ? err::InputTooShort
                      : at > Second && innerSize(at) ? err::SealBroken
                                                     : err::CheckValueDiffers,
                      "cut at " + std::to_string(at));
    }
    Bytes longer = whole;
    longer.push_back(0);
    expectRefused(longer, err::SealBroken, "a byte behind");
    job->key[0] ^= 1;
    expectRefused(whole, err::CheckValueDiffers, "another key");
    job->key.clear();
    EXPECT_EQ(encrypt("plain", "out").result, CryptoResult(err::KeyLengthDiffers));
}

TEST_F(SealedJob, AWrongPasswordIsToldAfterBothFormatsAndAStopBeforeTheSecond)
{
    folder.write("plain", text(noise(1000)));
    ASSERT_TRUE(encrypt("plain", "sealed").done());
    ASSERT_TRUE(encrypt("plain", "plainly", false).done());
    EXPECT_EQ(observer.calls, "sw");
    const FileJobOutcome plainly = decrypt("plainly", "out");
    EXPECT_TRUE(plainly.done() && !plainly.sealed);
    EXPECT_EQ(observer.calls, "sw");
    fs::remove(folder / "out");

    password = "wrong";
    for (const char* file : {"sealed", "plainly"}) {
        const FileJobOutcome outcome = decrypt(file, "out");
        EXPECT_EQ(outcome.result, CryptoResult(err::CheckValueDiffers));
        EXPECT_FALSE(outcome.sealed);
        EXPECT_EQ(observer.calls, "sd");
    }
    password = "secret";
    observer.cancelAfter = 'd';
    for (const FileJobOutcome& outcome : {encrypt("plain", "out"), decrypt("sealed", "out")})
        EXPECT_TRUE(outcome.cancelled && outcome.result.ok() && !outcome.outputDeleted);
    observer.cancelAfter = ' ';
    observer.questions = 0;
    observer.cancelAtQuestion = 2; // while the key is made
    EXPECT_TRUE(encrypt("plain", "out").cancelled);
    EXPECT_EQ(observer.calls, "d");
    EXPECT_FALSE(fs::exists(folder / "out"));
}

} // namespace
