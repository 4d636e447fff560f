#include "crypto/key/KeyMaterial.h"

#include "crypto/Guard.h"
#include "crypto/key/Hash.h"

#include <string_view>
#include <utility>

namespace tessaly::crypto {

namespace {

constexpr std::size_t RoundBufferSize = 128;

/// Part of the file format, as the rest of the derivation.
constexpr std::string_view roundPrefix(std::uint32_t round)
{
    return round == 0 ? "1st" : round % 2 == 1 ? "odd" : "evn";
}

CryptoResult appendRound(SecretBytes& key, std::uint32_t round, std::uint32_t hashId,
                         std::string_view password)
{
    SecretBytes buffer;
    buffer.reserve(RoundBufferSize);
    const std::string_view prefix = roundPrefix(round);
    const std::string_view start = password.substr(0, RoundBufferSize - prefix.size());
    buffer.append(prefix.begin(), prefix.end());
    buffer.append(start.begin(), start.end());

    SecretBytes digest;
    const CryptoResult result = hash(hashId, buffer.data(), buffer.size(), digest);
    key.append(digest.begin(), digest.end());
    return result;
}

CryptoResult extendKey(SecretBytes& key, std::uint32_t keyLength, std::uint32_t hashId,
                       std::string_view password)
{
    CryptoResult result = hash(hashId, password.data(), password.size(), key);
    for (std::uint32_t round = 0; result.ok() && key.size() < keyLength; ++round)
        result = appendRound(key, round, hashId, password);
    return result;
}

} // namespace

CryptoResult deriveKey(SecretBytes& key, std::uint32_t keyLength, std::uint32_t hashId, const char* password)
{
    key.clear();
    if (password == nullptr)
        return err::NullArgument;
    return guarded({}, [&] {
        SecretBytes material;
        material.reserve(keyLength + digestLength(hashId));
        const CryptoResult result = extendKey(material, keyLength, hashId, password);
        if (result.ok()) {
            material.resize(keyLength);
            key = std::move(material);
        }
        return result;
    });
}

} // namespace tessaly::crypto
