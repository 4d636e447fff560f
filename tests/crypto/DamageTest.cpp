#include "crypto/Engine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace {

using namespace test;
using tessaly::crypto::roundDown;

constexpr std::size_t HeaderEnd = 56;
constexpr std::size_t CheckedEnd = 48;

const char* const Ciphers[] = {"XSalsa20", "Panama", "CAST-128", "AES-256", "SHACAL2-256", "Threefish-1024"};

/// The bytes of the header that a reader looks at: check value and length.
bool isChecked(std::size_t offset)
{
    return (offset >= 2 && offset < 34) || (offset >= 40 && offset < 48);
}

TEST(Damage, TruncationAtEveryLengthIsFound)
{
    for (const char* name : Ciphers) {
        const Job job(name);
        const Bytes encrypted = job.encrypted(noise(300));
        for (std::size_t length = 0; length < encrypted.size(); ++length) {
            SCOPED_TRACE(std::string(name) + ", " + std::to_string(length));
            const auto usable = roundDown(length, job.algorithm.record.blockLength);
            CryptoResult expected;
            if (length > 0)
                expected =
                    length < HeaderEnd || usable < CheckedEnd ? err::InputTooShort : err::InputTruncated;
            MemoryInput in({encrypted.begin(), encrypted.begin() + static_cast<std::ptrdiff_t>(length)});
            MemoryOutput out;
            EXPECT_EQ(job.decrypt(in, out), expected);
            EXPECT_EQ(out.calls, 0);
        }
    }
}

TEST(Damage, BytesBehindTheFileAreIgnored)
{
    for (const char* name : Ciphers)
        for (const std::size_t extra : {1U, 7U, 128U, 40000U}) {
            const Job job(name);
            Bytes encrypted = job.encrypted(noise(300));
            encrypted.resize(encrypted.size() + extra, 0x55);
            MemoryInput in(encrypted);
            MemoryOutput out;
            EXPECT_EQ(job.decrypt(in, out), CryptoResult()) << name;
            EXPECT_EQ(out.bytes, noise(300)) << name;
        }
}

/// In a stream a flipped byte flips its own plain byte. In CBC it garbles its block and flips the same
/// byte of the next one.
TEST(Damage, AFlippedByteIsRefusedInTheHeaderAndHarmsLittleElsewhere)
{
    const Bytes data = noise(300);
    for (const char* name : Ciphers) {
        const Job job(name);
        const Bytes encrypted = job.encrypted(data);
        const std::size_t block = job.algorithm.record.blockLength;
        for (std::size_t flipped = 0; flipped < encrypted.size(); ++flipped) {
            SCOPED_TRACE(std::string(name) + ", " + std::to_string(flipped));
            const std::size_t garbledBegin = block == 0 ? flipped : flipped / block * block;
            const std::size_t garbledEnd = garbledBegin + block;
            const std::size_t inverted = flipped + block;
            bool refused = isChecked(inverted);
            for (std::size_t i = garbledBegin; i < garbledEnd; ++i)
                refused |= isChecked(i);

            Bytes damaged = encrypted;
            damaged[flipped] ^= 0xFF;
            MemoryInput in(damaged);
            MemoryOutput out;
            ASSERT_EQ(job.decrypt(in, out), refused ? CryptoResult(err::CheckValueDiffers) : CryptoResult());
            if (refused) {
                ASSERT_EQ(out.calls, 0);
                continue;
            }
            ASSERT_EQ(out.bytes.size(), data.size());
            for (std::size_t i = 0; i < data.size(); ++i) {
                const std::size_t offset = HeaderEnd + i;
                if (offset < garbledBegin || offset >= garbledEnd) {
                    ASSERT_EQ(out.bytes[i], offset == inverted ? data[i] ^ 0xFF : data[i]);
                }
            }
            if (garbledBegin >= HeaderEnd && garbledBegin < HeaderEnd + data.size()) {
                ASSERT_NE(out.bytes, data);
            }
        }
    }
}

/// Headers with a true check value and a length that the file does not hold.
TEST(Damage, ALengthBeyondTheFileIsRefusedWithoutOverflow)
{
    const Job job("Salsa20-256");
    const Bytes encrypted = job.encrypted(noise(300));
    constexpr auto Most = std::numeric_limits<std::uint64_t>::max();
    for (const std::uint64_t length :
         {std::uint64_t{301}, Most / 2, Most / 2 + 1, Most - 56, Most - 55, Most}) {
        Bytes header(HeaderEnd);
        ASSERT_TRUE(tessaly::crypto::makeHeader(job.algorithm.id, length, false,
                                                std::span<std::uint8_t, HeaderEnd>(header))
                        .ok());
        Bytes mask(encrypted.size());
        std::ranges::copy(header ^ plainFile(job.algorithm, noise(300)), mask.begin());
        MemoryInput in(encrypted ^ mask);
        MemoryOutput out;
        EXPECT_EQ(job.decrypt(in, out), CryptoResult(err::InputTruncated)) << length;
        EXPECT_EQ(out.calls, 0);
    }
}

} // namespace
