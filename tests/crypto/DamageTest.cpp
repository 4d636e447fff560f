#include "crypto/Engine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace {

using namespace test;

constexpr std::size_t HeaderEnd = 56;
const char* const Ciphers[] = {"XSalsa20",    "Panama",     "CAST-128",      "AES-256",
                               "SHACAL2-256", "Kalyna-512", "Threefish-1024"};

/// The bytes of the header that a reader looks at: check value and length.
bool isChecked(std::size_t offset)
{
    return (offset >= 2 && offset < 34) || (offset >= 40 && offset < 48);
}

TEST(Damage, TruncationAtEveryLengthIsFoundAndBytesBehindTheFileAreIgnored)
{
    const Bytes data = noise(300);
    for (const char* name : Ciphers) {
        const Job job(name);
        const Bytes encrypted = job.encrypt(data).bytes;
        for (std::size_t length = 0; length < 2 * encrypted.size(); ++length) {
            SCOPED_TRACE(std::string(name) + ", " + std::to_string(length));
            const auto usable = tessaly::crypto::roundDown(length, job.algorithm.record.blockLength);
            const bool whole = length >= encrypted.size();
            CryptoResult expected;
            if (length > 0 && !whole)
                expected = length < HeaderEnd ? err::InputTooShort
                           : usable < 48      ? err::CheckValueDiffers
                                              : err::InputTruncated;
            Bytes cut = encrypted;
            cut.resize(length, 0x55);
            const Outcome outcome = job.decrypt(cut);
            ASSERT_EQ(outcome.result, expected);
            ASSERT_EQ(outcome.bytes, whole ? data : Bytes());
        }
    }
}

/// In a stream a flipped byte flips its own plain byte. In CBC it garbles its block and flips the same
/// byte of the next one.
TEST(Damage, AFlippedByteIsRefusedInTheHeaderAndHarmsLittleElsewhere)
{
    const Bytes data = noise(300);
    for (const char* name : Ciphers) {
        const Job job(name);
        const Bytes encrypted = job.encrypt(data).bytes;
        const std::size_t block = job.algorithm.record.blockLength;
        for (std::size_t flipped = 0; flipped < encrypted.size(); ++flipped) {
            SCOPED_TRACE(std::string(name) + ", " + std::to_string(flipped));
            const std::size_t garbled = block == 0 ? flipped : flipped / block * block;
            const std::size_t inverted = flipped + block;
            bool refused = isChecked(inverted);
            for (std::size_t i = garbled; i < garbled + block; ++i)
                refused |= isChecked(i);
            Bytes damaged = encrypted;
            damaged[flipped] ^= 0xFF;
            Outcome outcome = job.decrypt(damaged);
            ASSERT_EQ(outcome.result, refused ? CryptoResult(err::CheckValueDiffers) : CryptoResult());
            ASSERT_EQ(outcome.bytes.size(), refused ? 0 : data.size());
            for (std::size_t i = 0; i < outcome.bytes.size(); ++i) {
                const std::size_t offset = HeaderEnd + i;
                const bool isGarbled = offset >= garbled && offset < garbled + block;
                ASSERT_TRUE(isGarbled || outcome.bytes[i] == (offset == inverted ? data[i] ^ 0xFF : data[i]));
            }
        }
    }
}

/// Headers with a true check value and a length that the file does not hold.
TEST(Damage, ALengthBeyondTheFileIsRefusedWithoutOverflow)
{
    const Job job("Salsa20-256");
    constexpr auto Most = std::numeric_limits<std::uint64_t>::max();
    for (const std::uint64_t length :
         {std::uint64_t{301}, Most / 2, Most / 2 + 1, Most - 56, Most - 55, Most}) {
        Bytes file = job.encrypt(noise(300)).bytes;
        std::ranges::copy(headerOf(job.algorithm, 300) ^ headerOf(job.algorithm, length) ^ file,
                          file.begin());
        const Outcome outcome = job.decrypt(file);
        EXPECT_EQ(outcome.result, CryptoResult(err::InputTruncated)) << length;
        EXPECT_EQ(outcome.writes, 0);
    }
}

} // namespace
