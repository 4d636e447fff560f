#pragma once

#include "crypto/CryptoResult.h"
#include "crypto/cipher/CipherCallback.h"
#include "crypto/cipher/ISymmetricEngine.h"
#include "io/IStreamBytes.h"
#include "io/OStreamBytes.h"
#include "lib/secret/Secret.h"

#include <cstdint>

namespace tessaly::crypto {

/// Enciphers a byte stream into the encrypted-file layout, with one algorithm. One operation at a
/// time: a second one gets (5, 8). An empty input gives an empty output.
class ISymmetricEncryptor : public ISymmetricEngine
{
public:
    /// With an IV of zero bytes.
    virtual CryptoResult encrypt(io::IStreamBytes* in, io::OStreamBytes* out, const SecretBytes& key,
                                 bool salt, IEncryptCallback* callback, void* userData) = 0;
    virtual CryptoResult encrypt(io::IStreamBytes* in, io::OStreamBytes* out, const SecretBytes& key,
                                 const SecretBytes& iv, bool salt, IEncryptCallback* callback,
                                 void* userData) = 0;
    virtual CryptoResult encrypt(io::IStreamBytes* in, io::OStreamBytes* out, const SecretBytes& key,
                                 const SecretBytes& iv, std::uint32_t chunkSize, std::uint32_t intervalMs,
                                 bool salt, IEncryptCallback* callback, void* userData) = 0;

    /// The password is zero-terminated; the hash that makes the key follows from the key length.
    virtual CryptoResult encryptWithPassword(io::IStreamBytes* in, io::OStreamBytes* out,
                                             const char* password, bool salt, IEncryptCallback* callback,
                                             void* userData) = 0;
    virtual CryptoResult encryptWithPassword(io::IStreamBytes* in, io::OStreamBytes* out,
                                             const char* password, std::uint32_t hashId, bool salt,
                                             IEncryptCallback* callback, void* userData) = 0;
    virtual CryptoResult encryptWithPassword(io::IStreamBytes* in, io::OStreamBytes* out,
                                             const char* password, std::uint32_t hashId,
                                             const SecretBytes& iv, std::uint32_t chunkSize,
                                             std::uint32_t intervalMs, bool salt, IEncryptCallback* callback,
                                             void* userData) = 0;

    /// From any thread: the running operation ends at its next chunk boundary.
    virtual void stop() = 0;
    virtual bool isBusy() const = 0;
};

} // namespace tessaly::crypto
