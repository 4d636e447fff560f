#include "crypto/Engine.h"
#include "support/DataRows.h"

#include <gtest/gtest.h>

namespace {

using namespace test;

/// Encrypts or decrypts with the password, or the key and IV, of a row.
Outcome converted(const Row& row, bool encrypt, MemoryInput in)
{
    const Job job(row.at(0));
    const Bytes letters = fromHex(row.at(1));
    const std::string password(letters.begin(), letters.end());
    const SecretBytes key = secret(fromHex(row.at(2)));
    const SecretBytes iv = secret(fromHex(row.at(3)));
    MemoryOutput out;
    CryptoResult result;
    if (key.empty() && encrypt)
        result = job.encryptor->runWithPassword(&in, &out, password.c_str(), false, nullptr, nullptr);
    else if (key.empty())
        result = job.decryptor->runWithPassword(&in, &out, password.c_str(), nullptr, nullptr);
    else if (encrypt)
        result = job.encryptor->run(&in, &out, key, iv, false, nullptr, nullptr);
    else
        result = job.decryptor->run(&in, &out, key, iv, nullptr, nullptr);
    return {result, out.bytes, out.calls};
}

TEST(FileFormat, GoldenFilesAreMadeAndOpened)
{
    const auto rows = dataRows("golden");
    EXPECT_EQ(rows.size(), 10U);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.at(0));
        EXPECT_EQ(converted(row, true, fromHex(row.at(4))).bytes, fromHex(row.at(5)));
        const Outcome opened = converted(row, false, fromHex(row.at(5)));
        EXPECT_EQ(opened.result, CryptoResult());
        EXPECT_EQ(opened.bytes, fromHex(row.at(4)));
    }
}

/// Around the header's end, the block, one chunk and two; then in small chunks and small reads.
TEST(FileFormat, EveryAlgorithmLengthAndChunkSizeComesBack)
{
    for (const CatalogueEntry& algorithm : tessaly::crypto::catalogue()) {
        Job job(algorithm);
        const std::size_t block = std::max<std::size_t>(algorithm.record.blockLength, 1);
        std::vector<std::size_t> lengths = {0, 1, 55, 56, 57, 32711, 32712, 32713, 65479, 65480, 65481};
        for (const std::size_t edge : {block, 2 * block - 56 % block})
            lengths.insert(lengths.end(), {edge - 1, edge, edge + 1});
        for (const std::size_t length : lengths) {
            SCOPED_TRACE(std::string(algorithm.name) + ", " + std::to_string(length));
            const Bytes plain = noise(length);
            const Outcome encrypted = job.encrypt(plain);
            ASSERT_EQ(encrypted.result, CryptoResult());
            ASSERT_EQ(encrypted.bytes.size(), length == 0 ? 0 : (length + 56 + block - 1) / block * block);
            const Outcome decrypted = job.decrypt(encrypted.bytes);
            ASSERT_EQ(decrypted.result, CryptoResult());
            ASSERT_EQ(decrypted.bytes, plain);
        }
        const Bytes plain = noise(3000);
        const Bytes encrypted = job.encrypt(plain).bytes;
        for (const std::uint32_t chunkSize : {8U, 57U, 100U, 1000U, 4096U}) {
            job.chunkSize = chunkSize;
            ASSERT_EQ(job.encrypt({plain, {.mostAtOnce = 37}}).bytes, encrypted) << algorithm.name;
            ASSERT_EQ(job.decrypt({encrypted, {.mostAtOnce = 37}}).bytes, plain) << algorithm.name;
        }
    }
}

/// Where a stream cipher's outputs are equal, so are its inputs.
TEST(FileFormat, SaltChangesSixBytesAndIsNotNeededToDecrypt)
{
    Job job("Salsa20-256");
    const Bytes plain = noise(500);
    const Bytes unsalted = job.encrypt(plain).bytes;
    EXPECT_EQ(job.encrypt(plain).bytes, unsalted);
    job.salt = true;
    const Bytes salted = job.encrypt(plain).bytes;
    Bytes difference = salted ^ unsalted;
    EXPECT_NE(difference, Bytes(unsalted.size()));
    std::fill_n(difference.begin() + 48, 6, std::uint8_t{0});
    EXPECT_EQ(difference, Bytes(unsalted.size()));
    EXPECT_EQ(job.decrypt(salted).bytes, plain);
}

TEST(FileFormat, WithoutTheSecretNothingIsWritten)
{
    for (const CatalogueEntry& algorithm : tessaly::crypto::catalogue()) {
        const Bytes encrypted = Job(algorithm).encrypt(noise(200)).bytes;
        Job wrongKey(algorithm);
        wrongKey.key.back() ^= 0x10; // not the lowest bit, which is DES's parity
        Job wrongIv(algorithm);
        wrongIv.iv[5] ^= 1; // lies over the check value
        for (const Job* job : {&wrongKey, &wrongIv}) {
            const Outcome outcome = job->decrypt(encrypted);
            EXPECT_EQ(outcome.result, CryptoResult(err::CheckValueDiffers)) << algorithm.name;
            EXPECT_EQ(outcome.writes, 0);
        }
    }
}

} // namespace
