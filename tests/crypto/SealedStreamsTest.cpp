#include "crypto/Engine.h"
#include "crypto/sealed/OpeningInput.h"
#include "crypto/sealed/SealedFormat.h"
#include "crypto/sealed/SealingOutput.h"
#include "support/DataRows.h"
#include "support/NewThreads.h"

#include <map>

namespace {

using namespace test;
using namespace tessaly::crypto;

constexpr std::size_t Slot = SealedPieceSize;

Bytes sealed(const Bytes& inner, const SecretBytes& tagKey, std::size_t atOnce = 100000)
{
    MemoryOutput out;
    SealingOutput sealing(out, secret(noise(SealSaltSize, 9)));
    EXPECT_TRUE(sealing.open(tagKey).ok());
    for (std::size_t at = 0; at < inner.size(); at += atOnce) {
        const auto count = static_cast<std::int64_t>(std::min(atOnce, inner.size() - at));
        EXPECT_EQ(sealing.write(inner.data() + at, count), count);
    }
    EXPECT_TRUE(sealing.finish());
    return out.bytes;
}

/// What is handed on, and with which error it ends.
Outcome opened(MemoryInput in, const SecretBytes& tagKey, std::size_t atOnce = 100000)
{
    Bytes salt(SealSaltSize);
    std::int64_t got = 0;
    const auto inner = innerSize(static_cast<std::uint64_t>(in.size()));
    if (!inner || !in.read(salt.data(), SealSaltSize, got))
        return {err::InputTooShort, {}};
    OpeningInput opening(in, *inner);
    Outcome outcome{opening.open(tagKey), {}};
    Bytes buffer(atOnce);
    while (outcome.result.ok() && opening.read(buffer.data(), std::ssize(buffer), got))
        outcome.bytes.insert(outcome.bytes.end(), buffer.begin(), buffer.begin() + got);
    if (outcome.result.ok())
        outcome.result = opening.lastError();
    EXPECT_TRUE(!outcome.result.ok() || opening.isAtEnd());
    EXPECT_FALSE(opening.read(buffer.data(), std::ssize(buffer), got)) << "no more after an end or a failure";
    return outcome;
}

class SealedStreams : public testing::Test
{
protected:
    /// It ends with the error, and gives at most the pieces of the inner file before it.
    void expectRefused(const Bytes& changed, std::size_t firstWrongPiece, const std::string& what)
    {
        const Outcome outcome = opened(changed, tagKey);
        const auto expected = !innerSize(changed.size()) ? err::InputTooShort
                              : firstWrongPiece > 0      ? err::SealBroken
                                                         : err::CheckValueDiffers;
        ASSERT_EQ(outcome.result, CryptoResult(expected)) << what;
        ASSERT_LE(outcome.bytes.size(), expected == err::SealBroken ? firstWrongPiece * PieceSize : 0)
            << what;
        ASSERT_TRUE(std::equal(outcome.bytes.begin(), outcome.bytes.end(), inner.begin())) << what;
    }

    const SecretBytes tagKey = secret(noise(TagKeySize, 5));
    const Bytes inner = noise(2 * PieceSize + 90);
    const Bytes whole = sealed(inner, tagKey);
};

TEST_F(SealedStreams, SizesAreThoseOfWholePieces)
{
    EXPECT_EQ(sealedSize(std::uint64_t{1} << 40), 1099780063264U);
    EXPECT_EQ(innerSize(1099780063264U), std::uint64_t{1} << 40);
    std::size_t possible = 0;
    for (std::uint64_t size = 0; size <= sealedSize(3 * PieceSize); ++size)
        if (const auto within = innerSize(size)) {
            ++possible;
            ASSERT_EQ(sealedSize(*within), size);
        }
    EXPECT_EQ(possible, 1 + 3 * PieceSize - 56) << "0, and all above the header's";
}

TEST_F(SealedStreams, EverySizeComesBackHoweverItIsCut)
{
    for (const std::size_t size : {0UL, 57UL, 65535UL, 65536UL, 65537UL, 131072UL, 131073UL, 200000UL,
                                   17 * PieceSize, 17 * PieceSize + 1, 40 * PieceSize - 1})
        for (const std::size_t atOnce : {1000UL, 65536UL, 70000UL}) {
            SCOPED_TRACE(std::to_string(size) + ", " + std::to_string(atOnce));
            const Bytes data = noise(size);
            const Bytes file = sealed(data, tagKey, atOnce);
            ASSERT_EQ(file.size(), sealedSize(size));
            const Outcome outcome = opened({file, {.mostAtOnce = 30000}}, tagKey, atOnce);
            ASSERT_EQ(outcome.result, CryptoResult());
            ASSERT_EQ(outcome.bytes, data);
        }
}

/// Of a piece and its tag; in between here and there.
TEST_F(SealedStreams, ChangedBytesAndTruncationsAreFound)
{
    for (std::size_t at = 0; at < whole.size(); ++at) {
        const std::size_t inSlot = (at + Slot - SealSaltSize) % Slot;
        if (inSlot >= 20 && inSlot <= Slot - 40 && at % 997 != 0)
            continue;
        const std::size_t piece = at > SealSaltSize ? (at - SealSaltSize) / Slot : 0;
        Bytes changed = whole;
        changed[at] ^= static_cast<std::uint8_t>(1 << at % 8);
        if (at >= SealSaltSize)
            expectRefused(changed, piece, "changed at " + std::to_string(at));
        changed.assign(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(at));
        const bool isWhole = inSlot == 0 && piece > 0; // of whole pieces alone
        expectRefused(changed, isWhole ? piece - 1 : piece, "cut at " + std::to_string(at));
    }
}

TEST_F(SealedStreams, PiecesKeepTheirPlaces)
{
    const Bytes other = sealed(noise(inner.size(), 2), secret(noise(TagKeySize, 6)));
    const Bytes single = sealed(Bytes(inner.begin(), inner.begin() + PieceSize), tagKey);
    const Bytes empty = sealed({}, tagKey);
    const std::map<char, std::pair<const Bytes&, std::size_t>> sources = {
        {'a', {whole, 0}}, {'b', {whole, 1}}, {'c', {whole, 2}},  {'A', {other, 0}},
        {'B', {other, 1}}, {'C', {other, 2}}, {'s', {single, 0}}, {'e', {empty, 0}}};
    const auto fileOf = [&](const std::string& pieces) {
        Bytes made(whole.begin(), whole.begin() + SealSaltSize);
        for (const char piece : pieces) {
            const auto& [file, index] = sources.at(piece);
            const std::size_t begin = SealSaltSize + index * Slot;
            const std::size_t end = std::min(begin + Slot, file.size());
            made.insert(made.end(), file.data() + begin, file.data() + end);
        }
        return made;
    };
    ASSERT_EQ(fileOf("abc"), whole);
    for (const Row& row : dataRows("pieces.txt"))
        expectRefused(fileOf(row.at(0)), std::stoul(row.at(1)), row[0]);
}

TEST_F(SealedStreams, FailuresOfTheFileAreTold)
{
    EXPECT_EQ(opened({whole, {.failAtCall = 2}}, tagKey).result,
              CryptoResult(err::ReadStreamFailed, StreamFault));
    EXPECT_EQ(opened({whole, {.failAtCall = 3}}, tagKey).result, CryptoResult(StreamFault));
    EXPECT_EQ(opened({whole, {.endsAt = 70000}}, tagKey).result, CryptoResult(err::SealBroken));
    EXPECT_EQ(opened({whole, {.miscount = 1}}, tagKey).result, CryptoResult(err::CheckValueDiffers));
    const Bytes larger = noise((2 * PiecesAtOnce + 1) * PieceSize);
    {
        const NewThreads none([] { return false; });
        EXPECT_EQ(opened(sealed(larger, tagKey), tagKey).bytes, larger) << "one thread does it all";
    }
    MemoryOutput taking({.mostAtOnce = 1000});
    SealingOutput sealingShort(taking, SecretBytes(SealSaltSize));
    ASSERT_TRUE(sealingShort.open(tagKey).ok());
    EXPECT_EQ(sealingShort.write(inner.data(), 2000), 2000);
    EXPECT_FALSE(sealingShort.finish());
    const auto size = static_cast<std::int64_t>(larger.size());
    for (const int failing : {1, 2, 3}) {
        MemoryOutput out({.failAtCall = failing});
        SealingOutput sealing(out, SecretBytes(SealSaltSize));
        ASSERT_TRUE(sealing.open(tagKey).ok());
        const std::int64_t taken = sealing.write(larger.data(), size);
        EXPECT_EQ(taken, failing == 3 ? size : failing * static_cast<std::int64_t>(PiecesAtOnce * PieceSize));
        EXPECT_TRUE(taken < size || !sealing.finish());
        EXPECT_EQ(sealing.lastError(), StreamFault);
    }
}

} // namespace
