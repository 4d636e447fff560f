#include "crypto/format/FileHeader.h"
#include "crypto/Engine.h"
#include "support/DataRows.h"

#include <array>
#include <atomic>
#include <ctime>
#include <set>

/// Stands before the library's in the whole test program, and is a second later each time.
extern "C" std::time_t testTime(std::time_t*) __asm__("time");
extern "C" std::time_t testTime(std::time_t* time)
{
    static std::atomic<std::time_t> now = 0;
    const std::time_t shown = ++now;
    if (time)
        *time = shown;
    return shown;
}

namespace {

using namespace tessaly::crypto;

static_assert(effectiveChunkSize(8, 0) == 56 && effectiveChunkSize(57, 0) == 57);
static_assert(effectiveChunkSize(8, 16) == 80 && effectiveChunkSize(64, 16) == 64);
static_assert(effectiveChunkSize(65, 64) == 128 && effectiveChunkSize(8, 128) == 384);
static_assert(effectiveChunkSize(4294967295, 128) == 4294967296);

static_assert(encryptedSize(0, 16) == 0 && encryptedSize(1, 0) == 57);
static_assert(encryptedSize(8, 16) == 64 && encryptedSize(9, 16) == 80);

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

/// Of 256 values each byte of the filler takes about 200 in 400 seconds.
TEST(FileHeader, SaltIsSixBytesThatChangeWithTheTime)
{
    std::array<std::set<int>, HeaderSize> values;
    for (int draw = 0; draw < 400; ++draw) {
        std::array<std::uint8_t, HeaderSize> header{};
        ASSERT_TRUE(makeHeader(252, 1, true, header).ok());
        for (std::size_t i = 0; i < values.size(); ++i)
            values[i].insert(header[i]);
    }
    for (std::size_t i = 0; i < values.size(); ++i)
        EXPECT_TRUE(i >= 48 && i < 54 ? values[i].size() > 150 : values[i].size() == 1) << i;
}

} // namespace
