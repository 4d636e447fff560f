#include "fuzz/support/PlainFormat.h"

#include "crypto/key/Hash.h"
#include "fuzz/support/Require.h"

#include <algorithm>
#include <string_view>

namespace fuzz {

namespace {

namespace err = tessaly::err;

constexpr std::size_t HeaderEnd = 56;
constexpr std::size_t LengthAt = 40;

void put(Bytes& bytes, std::size_t at, std::uint64_t value, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        bytes[at + i] = static_cast<std::uint8_t>(value >> (8 * i));
}

std::uint64_t lengthIn(const Bytes& plaintext)
{
    std::uint64_t length = 0;
    for (std::size_t i = 0; i < 8; ++i)
        length |= std::uint64_t{plaintext[LengthAt + i]} << (8 * i);
    return length;
}

Bytes checkValue(std::uint32_t id, std::uint64_t length)
{
    constexpr std::string_view Tag = "tessaly-tag";
    Bytes block(256);
    put(block, 0, id, 4);
    put(block, 4, length, 8);
    std::ranges::copy(Tag, block.begin() + 12);
    tessaly::SecretBytes digest;
    require(tessaly::crypto::hash(tessaly::crypto::Sha3_256Id, block.data(), block.size(), digest).ok(),
            "the hash works");
    return {digest.begin(), digest.end()};
}

/// Most often short, as the chunks are; sometimes around the end of a piece of a sealed file, or so much that
/// helpers work on it.
std::size_t chooseLength(Choices& choices)
{
    constexpr std::size_t PieceBytes = 65536;
    if (choices.seldom(100))
        return choices.upTo<std::size_t>(500'000);
    const std::size_t pieces = choices.seldom(8) ? choices.upTo(3U) : 0;
    return pieces * PieceBytes + choices.upTo<std::size_t>(300) - (pieces == 0 ? 0 : 150);
}

} // namespace

Forgery forge(Choices& choices, const RawCipher& cipher)
{
    Forgery made{
        .data = choices.noise(chooseLength(choices)), .claimed = 0, .isHonest = true, .plaintext = {}};
    const std::uint64_t length = made.data.size();
    made.claimed = choices.ConsumeBool() ? length : choices.hostileNumber(length);
    const std::uint32_t id = choices.seldom(16) ? cipher.id + 1 : cipher.id;

    Bytes& plain = made.plaintext;
    plain.resize(HeaderEnd);
    put(plain, 0, 2, 2);
    std::ranges::copy(checkValue(id, made.claimed), plain.begin() + 2);
    put(plain, LengthAt, made.claimed, 8);
    plain.insert(plain.end(), made.data.begin(), made.data.end());
    if (cipher.blockLength > 0)
        plain.resize((plain.size() + cipher.blockLength - 1) / cipher.blockLength * cipher.blockLength);

    made.isHonest = made.claimed == length && length > 0 && id == cipher.id;
    for (unsigned i = choices.seldom(8) ? 3 : 0; i > 0; --i) {
        made.isHonest = false;
        plain[choices.upTo(HeaderEnd - 1)] ^= choices.ConsumeIntegral<std::uint8_t>();
    }
    return made;
}

Reading readPlainFormat(const RawCipher& cipher, const tessaly::SecretBytes& key,
                        const tessaly::SecretBytes& iv, const Bytes& file)
{
    if (file.empty())
        return {};
    if (file.size() < HeaderEnd)
        return {err::InputTooShort, {}};
    const Bytes plain = processed(cipher.decryption, key, iv, file);
    if (plain.size() < LengthAt + 8)
        return {err::CheckValueDiffers, {}};
    const std::uint64_t length = lengthIn(plain);
    if (!std::ranges::equal(checkValue(cipher.id, length), std::span(plain).subspan(2, 32)))
        return {err::CheckValueDiffers, {}};
    if (plain.size() < HeaderEnd || plain.size() - HeaderEnd < length)
        return {err::InputTruncated, {}};
    const auto begin = plain.begin() + HeaderEnd;
    return {{}, {begin, begin + static_cast<std::ptrdiff_t>(length)}};
}

void damage(Choices& choices, Bytes& file)
{
    for (unsigned left = choices.upTo(3U); left > 0; --left)
        switch (choices.upTo(2)) {
        case 0:
            if (!file.empty())
                file[choices.upTo(file.size() - 1)] ^= choices.ConsumeIntegral<std::uint8_t>();
            break;
        case 1:
            file.resize(choices.upTo(file.size()));
            break;
        default:
            file.resize(file.size() + choices.upTo<std::size_t>(300),
                        choices.ConsumeIntegral<std::uint8_t>());
            break;
        }
}

} // namespace fuzz
