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
        const std::string password = text(fromHex(row.at(1)));
        const SecretBytes key = secret(fromHex(row.at(2)));
        const SecretBytes iv = secret(fromHex(row.at(3)));
        const Bytes plain = fromHex(row.at(4));
        const Bytes encrypted = fromHex(row.at(5));
        const Job job(row[0]);
        MemoryInput in(plain);
        MemoryInput again(encrypted);
        MemoryOutput made;
        MemoryOutput opened;
        if (key.empty()) {
            (void)job.encryptor->runWithPassword(&in, &made, password.c_str(), false, nullptr, nullptr);
            (void)job.decryptor->runWithPassword(&again, &opened, password.c_str(), nullptr, nullptr);
        } else {
            (void)job.encryptor->run(&in, &made, key, iv, false, nullptr, nullptr);
            (void)job.decryptor->run(&again, &opened, key, iv, nullptr, nullptr);
        }
        EXPECT_EQ(made.bytes, encrypted);
        EXPECT_EQ(opened.bytes, plain);
    }
}

/// Around the header's end, the block, one chunk and two; then in small chunks and small reads, and with the
/// salt.
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
            const Outcome decrypted = job.decrypt(encrypted.bytes);
            ASSERT_TRUE(encrypted.result.ok() && decrypted.result.ok());
            ASSERT_EQ(encrypted.bytes.size(), length == 0 ? 0 : (length + 56 + block - 1) / block * block);
            ASSERT_EQ(decrypted.bytes, plain);
        }
        const Bytes plain = noise(3000);
        const Bytes encrypted = job.encrypt(plain).bytes;
        for (const std::uint32_t chunkSize : {8U, 57U, 100U, 1000U, 4096U}) {
            job.chunkSize = chunkSize;
            ASSERT_EQ(job.encrypt({plain, {.mostAtOnce = 37}}).bytes, encrypted) << algorithm.name;
            ASSERT_EQ(job.decrypt({encrypted, {.mostAtOnce = 37}}).bytes, plain) << algorithm.name;
        }
        job.salt = true;
        const Bytes salted = job.encrypt(plain).bytes;
        ASSERT_TRUE(salted != encrypted && job.decrypt(salted).bytes == plain) << algorithm.name;
    }
}

/// Bytes behind the file are ignored. Of the header, check value and length are looked at; in a stream a
/// flipped byte flips its own plain byte.
TEST(FileFormat, TruncationAtEveryLengthAndDamageToTheHeaderAreFound)
{
    const Bytes data = noise(300);
    for (const char* name :
         {"XSalsa20", "Panama", "CAST-128", "AES-256", "SHACAL2-256", "Kalyna-512", "Threefish-1024"}) {
        const Job job(name);
        const Bytes encrypted = job.encrypt(data).bytes;
        const auto expectOpened = [&](const Bytes& file, const CryptoResult& result, const Bytes& content) {
            const Outcome outcome = job.decrypt(file);
            ASSERT_EQ(outcome.result, result) << name;
            ASSERT_EQ(outcome.bytes, content) << name;
        };
        for (std::size_t length = 0; length < 2 * encrypted.size(); ++length) {
            const auto usable = tessaly::crypto::roundDown(length, job.algorithm.record.blockLength);
            Bytes cut = encrypted;
            cut.resize(length, 0x55);
            if (length == 0 || length >= encrypted.size())
                expectOpened(cut, {}, length == 0 ? Bytes() : data);
            else
                expectOpened(cut,
                             length < 56   ? err::InputTooShort
                             : usable < 48 ? err::CheckValueDiffers
                                           : err::InputTruncated,
                             {});
        }
        if (!job.algorithm.record.stream)
            continue;
        for (std::size_t at = 0; at < encrypted.size(); ++at) {
            Bytes flipped = encrypted;
            flipped[at] ^= 0xFF;
            Bytes expected = data;
            if (at >= 56)
                expected[at - 56] ^= 0xFF;
            if ((at >= 2 && at < 34) || (at >= 40 && at < 48))
                expectOpened(flipped, err::CheckValueDiffers, {});
            else
                expectOpened(flipped, {}, expected);
        }
        constexpr auto Most = std::numeric_limits<std::uint64_t>::max();
        for (const std::uint64_t length :
             {std::uint64_t{301}, Most / 2, Most / 2 + 1, Most - 56, Most - 55, Most}) {
            Bytes file = encrypted; // whose header has a true check value, and a length that it does not hold
            std::ranges::copy(headerOf(job.algorithm, 300) ^ headerOf(job.algorithm, length) ^ file,
                              file.begin());
            expectOpened(file, err::InputTruncated, {});
        }
    }
}

} // namespace
