#pragma once

#include "crypto/cipher/CipherRun.h"
#include "crypto/cipher/ICipherEngine.h"
#include "crypto/cipher/ISymmetricCipher.h"
#include "crypto/cipher/OperationState.h"

namespace tessaly::crypto {

/// The encryptor or decryptor of every algorithm, over the engine that a derived class owns.
template <class... SaltFlag>
class SymmetricCipher : public ISymmetricCipher<SaltFlag...>
{
public:
    std::uint32_t algorithmId() const override { return engine().algorithmId(); }
    std::uint32_t keyLength() const override { return engine().keyLength(); }
    std::uint32_t ivLength() const override { return engine().ivLength(); }
    std::uint32_t blockLength() const override { return engine().blockLength(); }

    CryptoResult run(io::IStreamBytes* in, io::OStreamBytes* out, const SecretBytes& key, SaltFlag... salt,
                     ICipherCallback* callback, void* userData) override
    {
        return perform({in, out, {.key = &key}, (salt || ...), callback, userData});
    }
    CryptoResult run(io::IStreamBytes* in, io::OStreamBytes* out, const SecretBytes& key,
                     const SecretBytes& iv, SaltFlag... salt, ICipherCallback* callback,
                     void* userData) override
    {
        return perform({in, out, {.key = &key, .iv = &iv}, (salt || ...), callback, userData});
    }
    CryptoResult run(io::IStreamBytes* in, io::OStreamBytes* out, const SecretBytes& key,
                     const SecretBytes& iv, std::uint32_t chunkSize, std::uint32_t intervalMs,
                     SaltFlag... salt, ICipherCallback* callback, void* userData) override
    {
        return perform(
            {in, out, {.key = &key, .iv = &iv}, (salt || ...), callback, userData, chunkSize, intervalMs});
    }

    CryptoResult runWithPassword(io::IStreamBytes* in, io::OStreamBytes* out, const char* password,
                                 SaltFlag... salt, ICipherCallback* callback, void* userData) override
    {
        return perform({in, out, {.password = password}, (salt || ...), callback, userData});
    }
    CryptoResult runWithPassword(io::IStreamBytes* in, io::OStreamBytes* out, const char* password,
                                 std::uint32_t hashId, SaltFlag... salt, ICipherCallback* callback,
                                 void* userData) override
    {
        return perform(
            {in, out, {.password = password, .hashId = hashId}, (salt || ...), callback, userData});
    }
    CryptoResult runWithPassword(io::IStreamBytes* in, io::OStreamBytes* out, const char* password,
                                 std::uint32_t hashId, const SecretBytes& iv, std::uint32_t chunkSize,
                                 std::uint32_t intervalMs, SaltFlag... salt, ICipherCallback* callback,
                                 void* userData) override
    {
        return perform({in,
                        out,
                        {.password = password, .hashId = hashId, .iv = &iv},
                        (salt || ...),
                        callback,
                        userData,
                        chunkSize,
                        intervalMs});
    }

    void stop() override { m_state.requestStop(); }
    bool isBusy() const override { return m_state.isBusy(); }

protected:
    virtual ICipherEngine& engine() = 0;
    virtual const ICipherEngine& engine() const = 0;

private:
    static constexpr bool IsEncryptor = sizeof...(SaltFlag) > 0;

    CryptoResult perform(const CipherTask& task)
    {
        return runOperation(task, engine(), m_state, IsEncryptor ? encryptStream : decryptStream);
    }

    OperationState m_state;
};

} // namespace tessaly::crypto
