#pragma once

#include "crypto/CryptoResult.h"
#include "lib/secret/Secret.h"

#include <cstddef>

namespace tessaly::crypto {

/// A hash function in one call. No exception leaves it.
class IHash
{
public:
    virtual ~IHash() = default;
    virtual CryptoResult hash(const void* bytes, std::size_t count, SecretBytes& digest) = 0;
};

} // namespace tessaly::crypto
