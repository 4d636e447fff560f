#pragma once

#include "crypto/CryptoResult.h"

#include <cstddef>
#include <cstdint>

namespace tessaly::crypto {

/// One hash function, fed piece by piece. No exception leaves it.
class IHashEngine
{
public:
    virtual ~IHashEngine() = default;
    virtual std::uint32_t digestLength() const = 0;
    virtual CryptoResult update(const void* bytes, std::size_t count) = 0;
    /// Writes digestLength bytes and starts anew.
    virtual CryptoResult finish(std::uint8_t* digest) = 0;
};

} // namespace tessaly::crypto
