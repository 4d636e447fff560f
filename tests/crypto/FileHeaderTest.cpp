#include "crypto/FileHeader.h"
#include "crypto/Engine.h"
#include "support/DataRows.h"

#include <gtest/gtest.h>

namespace {

using namespace tessaly::crypto;

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

TEST(FileHeader, IsWhatAnotherProgramComputes)
{
    for (const test::Row& row : test::dataRows("headers.txt")) {
        const CatalogueEntry& algorithm = *findAlgorithm(static_cast<std::uint32_t>(std::stoul(row.at(0))));
        const std::uint64_t length = std::stoull(row.at(1));
        const test::Bytes header = test::headerOf(algorithm, length);
        EXPECT_EQ(header, test::fromHex(row.at(2)));
        std::uint64_t found = 0;
        const auto checked = std::span(header).first<CheckedHeaderSize>();
        EXPECT_EQ(verifyHeader(algorithm.id, checked, found), CryptoResult());
        EXPECT_EQ(found, length);
        EXPECT_EQ(verifyHeader(algorithm.id + 1, checked, found),
                  CryptoResult(tessaly::err::CheckValueDiffers));
    }
}

} // namespace
