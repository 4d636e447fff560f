#include "crypto/FileHeader.h"
#include "crypto/Engine.h"
#include "support/DataRows.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace {

using namespace tessaly::crypto;
namespace err = tessaly::err;

static_assert(effectiveChunkSize(8, 0) == 56 && effectiveChunkSize(57, 0) == 57);
static_assert(effectiveChunkSize(8, 8) == 56 && effectiveChunkSize(57, 8) == 72);
static_assert(effectiveChunkSize(8, 16) == 80 && effectiveChunkSize(64, 16) == 64);
static_assert(effectiveChunkSize(100, 16) == 112 && effectiveChunkSize(112, 16) == 112);
static_assert(effectiveChunkSize(8, 32) == 96 && effectiveChunkSize(96, 32) == 96);
static_assert(effectiveChunkSize(8, 64) == 192 && effectiveChunkSize(64, 64) == 192);
static_assert(effectiveChunkSize(65, 64) == 128 && effectiveChunkSize(128, 64) == 128);
static_assert(effectiveChunkSize(8, 128) == 384 && effectiveChunkSize(200, 128) == 256);
static_assert(effectiveChunkSize(4294967295, 128) == 4294967296);

static_assert(encryptedSize(0, 16) == 0 && encryptedSize(1, 0) == 57);
static_assert(encryptedSize(1, 16) == 64 && encryptedSize(8, 16) == 64 && encryptedSize(9, 16) == 80);
static_assert(encryptedSize(72, 128) == 128 && encryptedSize(73, 128) == 256);

using Header = std::array<std::uint8_t, HeaderSize>;

Header headerOf(std::uint32_t algorithm, std::uint64_t length, bool salt = false)
{
    Header header;
    header.fill(0xAA);
    EXPECT_TRUE(makeHeader(algorithm, length, salt, header).ok());
    return header;
}

CryptoResult verified(std::uint32_t algorithm, const Header& header, std::uint64_t& length)
{
    return verifyHeader(algorithm, std::span(header).first<CheckedHeaderSize>(), length);
}

TEST(FileHeader, IsWhatAnotherProgramComputes)
{
    for (const test::Row& row : test::dataRows("headers.txt")) {
        const auto algorithm = static_cast<std::uint32_t>(std::stoul(row.at(0)));
        const std::uint64_t length = std::stoull(row.at(1));
        const Header header = headerOf(algorithm, length);
        EXPECT_EQ(test::Bytes(header.begin(), header.end()), test::fromHex(row.at(2)));

        std::uint64_t found = 0;
        EXPECT_EQ(verified(algorithm, header, found), CryptoResult());
        EXPECT_EQ(found, length);
        EXPECT_EQ(verified(algorithm + 1, header, found), CryptoResult(err::CheckValueDiffers));
    }
}

TEST(FileHeader, SaltChangesSixBytes)
{
    const Header plain = headerOf(252, 1000);
    const Header salted = headerOf(252, 1000, true);
    EXPECT_NE(plain, salted);
    EXPECT_TRUE(std::equal(plain.begin(), plain.begin() + 48, salted.begin()));
    EXPECT_TRUE(std::equal(plain.begin() + 54, plain.end(), salted.begin() + 54));
}

} // namespace
