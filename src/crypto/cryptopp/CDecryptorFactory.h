#pragma once

#include "crypto/cipher/IDecryptorFactory.h"

namespace tessaly::cryptopp {

/// Provider 1: the Crypto++ engines.
class CDecryptorFactory final : public crypto::IDecryptorFactory
{
public:
    crypto::CryptoResult create(std::uint32_t providerId, std::uint32_t algorithmId,
                                std::unique_ptr<crypto::ISymmetricDecryptor>* decryptor) const override;
};

} // namespace tessaly::cryptopp
