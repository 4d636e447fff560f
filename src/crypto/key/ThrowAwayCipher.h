#pragma once

#include "crypto/CryptoResult.h"

#include <cstddef>
#include <cstdint>
#include <memory>

namespace tessaly::crypto {

/// Enciphers, and deciphers, what is to be kept for a moment, under a random key that exists in this object
/// only and is wiped with it: AES-256 in counter mode. A position is to be written once. No exception
/// leaves it.
class IThrowAwayCipher
{
public:
    virtual ~IThrowAwayCipher() = default;
    /// In place: these bytes, which stand at that position of the stream.
    virtual CryptoResult apply(std::uint64_t position, std::uint8_t* bytes, std::size_t count) = 0;
};

CryptoResult makeThrowAwayCipher(std::unique_ptr<IThrowAwayCipher>& cipher);

} // namespace tessaly::crypto
