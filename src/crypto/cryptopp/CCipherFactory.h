#pragma once

#include "crypto/cipher/ICipherFactory.h"

namespace tessaly::cryptopp {

/// Provider 1: the Crypto++ engines.
template <class Cipher>
class CCipherFactory final : public crypto::ICipherFactory<Cipher>
{
public:
    crypto::CryptoResult create(std::uint32_t providerId, std::uint32_t algorithmId,
                                std::unique_ptr<Cipher>* cipher) const override;
};

using CEncryptorFactory = CCipherFactory<crypto::ISymmetricEncryptor>;
using CDecryptorFactory = CCipherFactory<crypto::ISymmetricDecryptor>;

} // namespace tessaly::cryptopp
