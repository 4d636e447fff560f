#pragma once

#include "crypto/catalogue/AlgInfo.h"
#include "crypto/cipher/CipherRun.h"
#include "crypto/cipher/ICipherEngine.h"
#include "crypto/cipher/OperationState.h"
#include "crypto/key/KeyMaterial.h"

namespace tessaly::crypto {

/// What encryptor and decryptor share: the queries, stop and busy, over the engine that a derived
/// class owns. `Interface` is ISymmetricEncryptor or ISymmetricDecryptor.
template <class Interface>
class SymmetricCipher : public Interface
{
public:
    std::uint32_t algorithmId() const override { return engine().algorithmId(); }
    std::uint32_t keyLength() const override { return engine().keyLength(); }
    std::uint32_t ivLength() const override { return engine().ivLength(); }
    std::uint32_t blockLength() const override { return engine().blockLength(); }

    void stop() override { m_state.requestStop(); }
    bool isBusy() const override { return m_state.isBusy(); }

protected:
    virtual ICipherEngine& engine() = 0;
    virtual const ICipherEngine& engine() const = 0;

    SecretBytes zeroIv() const { return SecretBytes(ivLength()); }
    std::uint32_t passwordHash() const { return keyDerivationHash(keyLength(), ivLength()); }

    CryptoResult run(const CipherTask& task, CryptoResult (*work)(CipherRun&))
    {
        return runOperation(task, engine(), m_state, work);
    }

    /// Calls useKey(key) with the key of the password; nothing when there is none.
    template <class UseKey>
    CryptoResult withDerivedKey(const char* password, std::uint32_t hashId, UseKey useKey)
    {
        SecretBytes key;
        if (const CryptoResult derived = deriveKey(key, keyLength(), hashId, password); !derived.ok())
            return {derived.first(), err::library(err::KeyDerivationFailed)};
        return useKey(key);
    }

private:
    OperationState m_state;
};

} // namespace tessaly::crypto
