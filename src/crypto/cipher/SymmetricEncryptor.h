#pragma once

#include "crypto/cipher/ISymmetricEncryptor.h"
#include "crypto/cipher/SymmetricCipher.h"

namespace tessaly::crypto {

/// The encryptor of every algorithm, over the engine that a derived class owns.
class SymmetricEncryptor : public SymmetricCipher<ISymmetricEncryptor>
{
public:
    CryptoResult encrypt(io::IStreamBytes* in, io::OStreamBytes* out, const SecretBytes& key, bool salt,
                         IEncryptCallback* callback, void* userData) override;
    CryptoResult encrypt(io::IStreamBytes* in, io::OStreamBytes* out, const SecretBytes& key,
                         const SecretBytes& iv, bool salt, IEncryptCallback* callback,
                         void* userData) override;
    CryptoResult encrypt(io::IStreamBytes* in, io::OStreamBytes* out, const SecretBytes& key,
                         const SecretBytes& iv, std::uint32_t chunkSize, std::uint32_t intervalMs, bool salt,
                         IEncryptCallback* callback, void* userData) override;
    CryptoResult encryptWithPassword(io::IStreamBytes* in, io::OStreamBytes* out, const char* password,
                                     bool salt, IEncryptCallback* callback, void* userData) override;
    CryptoResult encryptWithPassword(io::IStreamBytes* in, io::OStreamBytes* out, const char* password,
                                     std::uint32_t hashId, bool salt, IEncryptCallback* callback,
                                     void* userData) override;
    CryptoResult encryptWithPassword(io::IStreamBytes* in, io::OStreamBytes* out, const char* password,
                                     std::uint32_t hashId, const SecretBytes& iv, std::uint32_t chunkSize,
                                     std::uint32_t intervalMs, bool salt, IEncryptCallback* callback,
                                     void* userData) override;
};

} // namespace tessaly::crypto
