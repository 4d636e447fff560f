#pragma once

#include "crypto/CryptoResult.h"
#include "crypto/cipher/ISymmetricDecryptor.h"

#include <cstdint>
#include <memory>

namespace tessaly::crypto {

class IDecryptorFactory
{
public:
    virtual ~IDecryptorFactory() = default;
    /// (5, 5) for a null `decryptor`, (5, 70) for an unknown provider or algorithm.
    virtual CryptoResult create(std::uint32_t providerId, std::uint32_t algorithmId,
                                std::unique_ptr<ISymmetricDecryptor>* decryptor) const = 0;
};

} // namespace tessaly::crypto
