#include "crypto/sealed/PieceTagger.h"

#include "crypto/key/Hmac.h"

#include <algorithm>

namespace tessaly::crypto {

namespace {

constexpr std::size_t DigestSize = 32;
constexpr std::size_t IndexSize = 8;

} // namespace

CryptoResult PieceTagger::setKey(const SecretBytes& tagKey)
{
    m_index = 0;
    return makeHmac(HmacHash::Sha256, tagKey, m_hmac);
}

CryptoResult PieceTagger::tagNext(std::span<const std::uint8_t> piece, bool isLast, PieceTag& tag)
{
    std::array<std::uint8_t, IndexSize + 1> prefix{};
    for (std::size_t i = 0; i < IndexSize; ++i)
        prefix[i] = static_cast<std::uint8_t>(m_index >> (8 * i));
    prefix.back() = isLast ? 1 : 0;
    ++m_index;

    std::array<std::uint8_t, DigestSize> digest{};
    CryptoResult result = m_hmac->update(prefix.data(), prefix.size());
    if (result.ok())
        result = m_hmac->update(piece.data(), piece.size());
    if (result.ok())
        result = m_hmac->finish(digest.data());
    std::copy_n(digest.begin(), tag.size(), tag.begin());
    return result;
}

} // namespace tessaly::crypto
