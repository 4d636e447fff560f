#pragma once

#include "crypto/cipher/SymmetricCipher.h"
#include "lib/secret/SecretHeap.h"

namespace tessaly::cryptopp {

/// The encryptor or decryptor of one algorithm.
template <class Engine, class... SaltFlag>
class CSymmetricCipher final : public crypto::SymmetricCipher<SaltFlag...>, public InSecretHeap
{
private:
    crypto::ICipherEngine& engine() override { return m_engine; }
    const crypto::ICipherEngine& engine() const override { return m_engine; }

    Engine m_engine;
};

template <class Engine>
using CSymmetricEncryptor = CSymmetricCipher<Engine, bool>;
template <class Engine>
using CSymmetricDecryptor = CSymmetricCipher<Engine>;

} // namespace tessaly::cryptopp
