#pragma once

#include <cstdint>

namespace tessaly::crypto {

/// What an algorithm's encryptor, decryptor or engine tells of itself; lengths in bytes.
class ISymmetricEngine
{
public:
    virtual ~ISymmetricEngine() = default;
    virtual std::uint32_t algorithmId() const = 0;
    virtual std::uint32_t keyLength() const = 0;
    virtual std::uint32_t ivLength() const = 0;
    virtual std::uint32_t blockLength() const = 0; ///< 0 for a stream cipher
};

} // namespace tessaly::crypto
