#pragma once

#include "crypto/cipher/IEncryptorFactory.h"

namespace tessaly::cryptopp {

/// Provider 1: the Crypto++ engines.
class CEncryptorFactory final : public crypto::IEncryptorFactory
{
public:
    crypto::CryptoResult create(std::uint32_t providerId, std::uint32_t algorithmId,
                                std::unique_ptr<crypto::ISymmetricEncryptor>* encryptor) const override;
};

} // namespace tessaly::cryptopp
