#include "crypto/format/FileHeader.h"

#include "crypto/key/Hash.h"
#include "lib/secret/Secret.h"

#include <array>
#include <cstdlib>
#include <ctime>
#include <string_view>

namespace tessaly::crypto {

namespace {

constexpr std::uint16_t FormatVersion = 2;
constexpr std::string_view FormatTag = "tessaly-tag";
static_assert(FormatTag.size() == 11);

constexpr std::size_t CheckValueOffset = 2;
constexpr std::size_t CheckValueSize = 32;
constexpr std::size_t LengthOffset = 40;
constexpr std::size_t FillerOffset = 48;
constexpr std::size_t FillerSize = 6;

template <class Unsigned>
void putLittleEndian(std::uint8_t* out, Unsigned value)
{
    for (std::size_t i = 0; i < sizeof(value); ++i)
        out[i] = static_cast<std::uint8_t>(value >> (8 * i));
}

std::uint64_t getLittleEndian64(const std::uint8_t* in)
{
    std::uint64_t value = 0;
    for (std::size_t i = 8; i-- > 0;)
        value = value << 8 | in[i];
    return value;
}

CryptoResult checkValue(std::uint32_t algorithmId, std::uint64_t length, SecretBytes& digest)
{
    std::array<std::uint8_t, 256> block{};
    putLittleEndian(block.data(), algorithmId);
    putLittleEndian(block.data() + 4, length);
    std::ranges::copy(FormatTag, block.begin() + 12);
    CryptoResult result = hash(Sha3_256Id, block.data(), block.size(), digest);
    if (!result.ok())
        result = {result.first(), err::library(err::CheckValueHashFailed)};
    return result;
}

/// The filler only makes equal files differ; it protects nothing, so the runtime's generator with
/// its 15 bits a draw is good enough.
void fillRandomly(std::span<std::uint8_t> bytes)
{
    std::srand(static_cast<unsigned>(std::time(nullptr)));
    for (std::uint8_t& byte : bytes)
        byte = static_cast<std::uint8_t>((std::rand() & 0x7fff) * 256 / 32768);
}

} // namespace

CryptoResult makeHeader(std::uint32_t algorithmId, std::uint64_t length, bool salt,
                        std::span<std::uint8_t, HeaderSize> header)
{
    SecretBytes digest;
    const CryptoResult result = checkValue(algorithmId, length, digest);
    if (!result.ok())
        return result;
    std::ranges::fill(header, std::uint8_t{0});
    putLittleEndian(header.data(), FormatVersion);
    std::ranges::copy(digest, header.begin() + CheckValueOffset);
    putLittleEndian(header.data() + LengthOffset, length);
    if (salt)
        fillRandomly(header.subspan<FillerOffset, FillerSize>());
    return {};
}

CryptoResult verifyHeader(std::uint32_t algorithmId, std::span<const std::uint8_t, CheckedHeaderSize> header,
                          std::uint64_t& length)
{
    length = getLittleEndian64(header.data() + LengthOffset);
    SecretBytes digest;
    const CryptoResult result = checkValue(algorithmId, length, digest);
    if (result.ok() && !std::ranges::equal(digest, header.subspan<CheckValueOffset, CheckValueSize>()))
        return err::CheckValueDiffers;
    return result;
}

} // namespace tessaly::crypto
