#pragma once

#include "crypto/CryptoResult.h"
#include "crypto/cipher/ISymmetricCipher.h"

#include <cstdint>
#include <memory>

namespace tessaly::crypto {

/// Makes the encryptor or decryptor of an algorithm.
template <class Cipher>
class ICipherFactory
{
public:
    virtual ~ICipherFactory() = default;
    /// (5, 5) for a null `cipher`, (5, 70) for an unknown provider or algorithm.
    virtual CryptoResult create(std::uint32_t providerId, std::uint32_t algorithmId,
                                std::unique_ptr<Cipher>* cipher) const = 0;
};

using IEncryptorFactory = ICipherFactory<ISymmetricEncryptor>;
using IDecryptorFactory = ICipherFactory<ISymmetricDecryptor>;

} // namespace tessaly::crypto
