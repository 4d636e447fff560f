#pragma once

#include "crypto/catalogue/IAlgInfo.h"

namespace tessaly::crypto {

/// The catalogue's sizes and hashes by algorithm id.
class AlgInfo final : public IAlgInfo<1>
{
public:
    AlgRecord record(std::uint32_t algorithmId) const override;
    std::uint32_t keyDerivationHash(std::uint32_t algorithmId) const override;
};

/// The hash for a password-derived key: 0 when the key or IV length is below 1, else by key length
/// in bytes: up to 28 SHA3-224 (20), to 32 SHA3-256 (21), to 48 SHA3-384 (22), beyond SHA3-512 (23).
constexpr std::uint32_t keyDerivationHash(std::uint32_t keyLength, std::uint32_t ivLength)
{
    if (keyLength < 1 || ivLength < 1)
        return 0;
    return keyLength <= 28 ? 20 : keyLength <= 32 ? 21 : keyLength <= 48 ? 22 : 23;
}

} // namespace tessaly::crypto
