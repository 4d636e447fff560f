#pragma once

#include "crypto/CryptoResult.h"
#include "crypto/cipher/CipherCallback.h"
#include "crypto/cipher/ISymmetricEngine.h"
#include "io/IStreamBytes.h"
#include "io/OStreamBytes.h"
#include "lib/secret/Secret.h"

#include <cstdint>

namespace tessaly::crypto {

/// Enciphers a byte stream into the encrypted-file layout with one algorithm, or deciphers such a one.
/// The directions differ only in the salt flag, which the encryptor takes. An empty input gives an
/// empty output. Nothing is deciphered into the output before the check value has shown that the key is
/// right. One operation at a time: a second one gets (5, 8). No exception leaves it.
template <class... SaltFlag>
class ISymmetricCipher : public ISymmetricEngine
{
public:
    /// With an IV of zero bytes.
    virtual CryptoResult run(io::IStreamBytes* in, io::OStreamBytes* out, const SecretBytes& key,
                             SaltFlag... salt, ICipherCallback* callback, void* userData) = 0;
    virtual CryptoResult run(io::IStreamBytes* in, io::OStreamBytes* out, const SecretBytes& key,
                             const SecretBytes& iv, SaltFlag... salt, ICipherCallback* callback,
                             void* userData) = 0;
    virtual CryptoResult run(io::IStreamBytes* in, io::OStreamBytes* out, const SecretBytes& key,
                             const SecretBytes& iv, std::uint32_t chunkSize, std::uint32_t intervalMs,
                             SaltFlag... salt, ICipherCallback* callback, void* userData) = 0;

    /// The password is zero-terminated; the hash that makes the key follows from the key length.
    virtual CryptoResult runWithPassword(io::IStreamBytes* in, io::OStreamBytes* out, const char* password,
                                         SaltFlag... salt, ICipherCallback* callback, void* userData) = 0;
    virtual CryptoResult runWithPassword(io::IStreamBytes* in, io::OStreamBytes* out, const char* password,
                                         std::uint32_t hashId, SaltFlag... salt, ICipherCallback* callback,
                                         void* userData) = 0;
    virtual CryptoResult runWithPassword(io::IStreamBytes* in, io::OStreamBytes* out, const char* password,
                                         std::uint32_t hashId, const SecretBytes& iv, std::uint32_t chunkSize,
                                         std::uint32_t intervalMs, SaltFlag... salt,
                                         ICipherCallback* callback, void* userData) = 0;

    /// From any thread: the running operation ends at its next chunk boundary.
    virtual void stop() = 0;
    virtual bool isBusy() const = 0;
};

using ISymmetricEncryptor = ISymmetricCipher<bool>;
using ISymmetricDecryptor = ISymmetricCipher<>;

} // namespace tessaly::crypto
