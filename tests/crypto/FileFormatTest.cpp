#include "crypto/Engine.h"
#include "support/DataRows.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using namespace test;

/// Encrypts or decrypts one row's file as its password, or its key and IV, say.
Bytes converted(const Row& row, bool encrypt, const Bytes& bytes)
{
    const CatalogueEntry& algorithm = *tessaly::crypto::findAlgorithm(row.at(0));
    const Bytes letters = fromHex(row.at(1));
    const std::string password(letters.begin(), letters.end());
    const SecretBytes key = secret(fromHex(row.at(2)));
    const SecretBytes iv = secret(fromHex(row.at(3)));
    MemoryInput in(bytes);
    MemoryOutput out;
    const auto result = [&] {
        if (encrypt) {
            const auto encryptor = encryptorOf(algorithm);
            return key.empty()
                       ? encryptor->encryptWithPassword(&in, &out, password.c_str(), false, nullptr, nullptr)
                       : encryptor->encrypt(&in, &out, key, iv, false, nullptr, nullptr);
        }
        const auto decryptor = decryptorOf(algorithm);
        return key.empty() ? decryptor->decryptWithPassword(&in, &out, password.c_str(), nullptr, nullptr)
                           : decryptor->decrypt(&in, &out, key, iv, nullptr, nullptr);
    }();
    EXPECT_EQ(result, CryptoResult());
    return out.bytes;
}

TEST(FileFormat, GoldenFilesAreMadeAndOpened)
{
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(TEST_DATA_DIR "/golden"))
        for (const Row& row : dataRows("golden/" + entry.path().filename().string())) {
            SCOPED_TRACE(entry.path().filename().string() + " " + row.at(0));
            const Bytes plain = fromHex(row.at(4));
            const Bytes encrypted = fromHex(row.at(5));
            EXPECT_EQ(converted(row, true, plain), encrypted);
            EXPECT_EQ(converted(row, false, encrypted), plain);
            ++count;
        }
    EXPECT_GE(count, 8);
}

/// Around the header's end, the block, one chunk and two.
std::vector<std::size_t> lengthsAround(std::size_t block)
{
    std::vector<std::size_t> lengths = {0, 1, 55, 56, 57, 32711, 32712, 32713, 65479, 65480, 65481};
    if (block > 1)
        for (const std::size_t edge : {block, 2 * block - 56 % block})
            for (const std::size_t length : {edge - 1, edge, edge + 1})
                lengths.push_back(length);
    return lengths;
}

TEST(FileFormat, EveryAlgorithmAndLengthComesBack)
{
    for (const CatalogueEntry& algorithm : tessaly::crypto::catalogue()) {
        const Job job(algorithm);
        const std::size_t block = std::max<std::size_t>(algorithm.record.blockLength, 1);
        for (const std::size_t length : lengthsAround(block)) {
            SCOPED_TRACE(std::string(algorithm.name) + ", " + std::to_string(length));
            const Bytes plain = noise(length);
            const Bytes encrypted = job.encrypted(plain);
            ASSERT_EQ(encrypted.size(), length == 0 ? 0 : (length + 56 + block - 1) / block * block);
            MemoryInput in(encrypted);
            MemoryOutput out;
            ASSERT_EQ(job.decrypt(in, out), CryptoResult());
            ASSERT_EQ(out.bytes, plain);
        }
    }
}

TEST(FileFormat, IsTheSameForEveryChunkSizeAndWayOfReading)
{
    for (const CatalogueEntry& algorithm : tessaly::crypto::catalogue()) {
        SCOPED_TRACE(algorithm.name);
        const Bytes plain = noise(3000);
        const Bytes encrypted = Job(algorithm).encrypted(plain);
        for (const std::uint32_t chunkSize : {8U, 57U, 100U, 1000U, 4096U}) {
            Job job(algorithm);
            job.chunkSize = chunkSize;
            MemoryInput plainInput(plain);
            plainInput.faults.mostAtOnce = 37;
            MemoryOutput encryptedOutput;
            ASSERT_EQ(job.encrypt(plainInput, encryptedOutput), CryptoResult());
            ASSERT_EQ(encryptedOutput.bytes, encrypted) << chunkSize;

            MemoryInput encryptedInput(encrypted);
            encryptedInput.faults.mostAtOnce = 37;
            MemoryOutput out;
            ASSERT_EQ(job.decrypt(encryptedInput, out), CryptoResult());
            ASSERT_EQ(out.bytes, plain) << chunkSize;
        }
    }
}

/// A stream cipher shows the header's bytes: equal ciphertext means equal plaintext.
TEST(FileFormat, SaltChangesSixBytesAndIsNotNeededToDecrypt)
{
    Job job("Salsa20-256");
    const Bytes plain = noise(500);
    const Bytes unsalted = job.encrypted(plain);
    EXPECT_EQ(job.encrypted(plain), unsalted);
    job.salt = true;
    const Bytes salted = job.encrypted(plain);
    EXPECT_NE(salted, unsalted);
    Bytes difference = salted ^ unsalted;
    std::fill(difference.begin() + 48, difference.begin() + 54, std::uint8_t{0});
    EXPECT_EQ(difference, Bytes(unsalted.size()));

    MemoryInput in(salted);
    MemoryOutput out;
    EXPECT_EQ(job.decrypt(in, out), CryptoResult());
    EXPECT_EQ(out.bytes, plain);
}

TEST(FileFormat, WithoutTheSecretNothingIsWritten)
{
    const auto expectRefused = [](const Job& job, const Bytes& encrypted) {
        MemoryInput in(encrypted);
        MemoryOutput out;
        EXPECT_EQ(job.decrypt(in, out), CryptoResult(err::CheckValueDiffers)) << job.algorithm.name;
        EXPECT_EQ(out.calls, 0);
    };
    const Bytes plain = noise(200);
    for (const CatalogueEntry& algorithm : tessaly::crypto::catalogue()) {
        const Job job(algorithm);
        const Bytes encrypted = job.encrypted(plain);
        Job wrongKey(algorithm);
        wrongKey.key.back() ^= 0x10; // not the lowest bit, which is DES's parity
        expectRefused(wrongKey, encrypted);
        Job wrongIv(algorithm);
        wrongIv.iv[5] ^= 1; // lies over the check value
        expectRefused(wrongIv, encrypted);
    }
    expectRefused(Job("Twofish-256"), Job("AES-256").encrypted(plain));
    expectRefused(Job("AES-256"), noise(200));
}

} // namespace
