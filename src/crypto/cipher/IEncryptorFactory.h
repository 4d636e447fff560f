#pragma once

#include "crypto/CryptoResult.h"
#include "crypto/cipher/ISymmetricEncryptor.h"

#include <cstdint>
#include <memory>

namespace tessaly::crypto {

class IEncryptorFactory
{
public:
    virtual ~IEncryptorFactory() = default;
    /// (5, 5) for a null `encryptor`, (5, 70) for an unknown provider or algorithm.
    virtual CryptoResult create(std::uint32_t providerId, std::uint32_t algorithmId,
                                std::unique_ptr<ISymmetricEncryptor>* encryptor) const = 0;
};

} // namespace tessaly::crypto
