#include "crypto/Engine.h"
#include "support/DataRows.h"

#include <limits>

namespace {

using namespace test;

TEST(FileFormat, GoldenFilesAreMadeAndOpened)
{
    const auto rows = dataRows("golden");
    EXPECT_EQ(rows.size(), 10U);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.at(0));
        const Bytes letters = fromHex(row.at(1));
        const std::string password(letters.begin(), letters.end());
        const Bytes plain = fromHex(row.at(4));
        const Bytes encrypted = fromHex(row.at(5));
        Job job(row[0]);
        MemoryInput in(plain);
        MemoryInput again(encrypted);
        MemoryOutput made;
        MemoryOutput opened;
        if (row.at(2).empty()) {
            (void)job.encryptor->runWithPassword(&in, &made, password.c_str(), false, nullptr, nullptr);
            (void)job.decryptor->runWithPassword(&again, &opened, password.c_str(), nullptr, nullptr);
        } else {
            job.key = secret(fromHex(row[2]));
            job.iv = secret(fromHex(row.at(3)));
            (void)job.encryptor->run(&in, &made, job.key, job.iv, false, nullptr, nullptr);
            (void)job.decryptor->run(&again, &opened, job.key, job.iv, nullptr, nullptr);
        }
        EXPECT_EQ(made.bytes, encrypted);
        EXPECT_EQ(opened.bytes, plain);
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

TEST(FileFormat, TruncationAtEveryLengthIsFoundAndBytesBehindTheFileAreIgnored)
{
    const Bytes data = noise(300);
    for (const char* name :
         {"XSalsa20", "Panama", "CAST-128", "AES-256", "SHACAL2-256", "Kalyna-512", "Threefish-1024"}) {
        const Job job(name);
        const Bytes encrypted = job.encrypt(data).bytes;
        for (std::size_t length = 0; length < 2 * encrypted.size(); ++length) {
            SCOPED_TRACE(std::string(name) + ", " + std::to_string(length));
            const auto usable = tessaly::crypto::roundDown(length, job.algorithm.record.blockLength);
            const bool whole = length >= encrypted.size();
            CryptoResult expected;
            if (length > 0 && !whole)
                expected = length < 56   ? err::InputTooShort
                           : usable < 48 ? err::CheckValueDiffers
                                         : err::InputTruncated;
            Bytes cut = encrypted;
            cut.resize(length, 0x55);
            const Outcome outcome = job.decrypt(cut);
            ASSERT_EQ(outcome.result, expected);
            ASSERT_EQ(outcome.bytes, whole ? data : Bytes());
        }
    }
}

/// Check value and length are looked at. In a stream a flipped byte flips its own plain byte.
TEST(FileFormat, AFlippedByteIsRefusedInTheHeaderAndHarmsNoOther)
{
    const Bytes data = noise(300);
    for (const char* name : {"XSalsa20", "Panama"}) {
        const Job job(name);
        const Bytes encrypted = job.encrypt(data).bytes;
        for (std::size_t at = 0; at < encrypted.size(); ++at) {
            SCOPED_TRACE(std::string(name) + ", " + std::to_string(at));
            const bool isRefused = (at >= 2 && at < 34) || (at >= 40 && at < 48);
            Bytes flipped = encrypted;
            flipped[at] ^= 0xFF;
            Bytes expected = isRefused ? Bytes() : data;
            if (at >= 56)
                expected[at - 56] ^= 0xFF;
            const Outcome outcome = job.decrypt(flipped);
            ASSERT_EQ(outcome.result, isRefused ? CryptoResult(err::CheckValueDiffers) : CryptoResult());
            ASSERT_EQ(outcome.bytes, expected);
        }
    }
}

/// Headers with a true check value and a length that the file does not hold.
TEST(FileFormat, ALengthBeyondTheFileIsRefusedWithoutOverflow)
{
    const Job job("Salsa20-256");
    const Bytes data = noise(300);
    constexpr auto Most = std::numeric_limits<std::uint64_t>::max();
    for (const std::uint64_t length :
         {std::uint64_t{301}, Most / 2, Most / 2 + 1, Most - 56, Most - 55, Most}) {
        Bytes file = job.encrypt(data).bytes;
        std::ranges::copy(headerOf(job.algorithm, 300) ^ headerOf(job.algorithm, length) ^ file,
                          file.begin());
        const Outcome outcome = job.decrypt(file);
        EXPECT_EQ(outcome.result, CryptoResult(err::InputTruncated)) << length;
        EXPECT_EQ(outcome.writes, 0);
    }
}

} // namespace
