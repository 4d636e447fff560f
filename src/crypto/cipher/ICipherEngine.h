#pragma once

#include "crypto/CryptoResult.h"
#include "crypto/cipher/ISymmetricEngine.h"
#include "lib/secret/Secret.h"

#include <cstddef>
#include <cstdint>
#include <memory>

namespace tessaly::crypto {

/// One keyed cipher in one direction; consecutive calls continue one stream or CBC chain.
/// No exception leaves it.
class ICipherEngine : public ISymmetricEngine
{
public:
    /// Room beyond the data that `process` may want in a buffer.
    virtual std::uint32_t extraRoom() const = 0;
    /// Keys the cipher anew; with the key alone when the IV is empty.
    virtual CryptoResult setKey(const SecretBytes& key, const SecretBytes& iv) = 0;
    /// `count` is a multiple of the block length; the buffers are the same or do not overlap.
    virtual CryptoResult process(std::uint8_t* out, const std::uint8_t* in, std::size_t count) = 0;

    /// A further engine of the same algorithm and direction, without a key. Null where a piece of a
    /// stream cannot be processed apart from what is before it.
    virtual std::unique_ptr<ICipherEngine> another() const = 0;
    /// Where there may be further engines: continues at this position of the stream, in bytes, behind
    /// this block of ciphertext.
    virtual CryptoResult continueAt(std::uint64_t position, const std::uint8_t* blockBefore) = 0;
};

} // namespace tessaly::crypto
