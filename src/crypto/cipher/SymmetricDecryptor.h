#pragma once

#include "crypto/cipher/ISymmetricDecryptor.h"
#include "crypto/cipher/SymmetricCipher.h"

namespace tessaly::crypto {

/// The decryptor of every algorithm, over the engine that a derived class owns.
class SymmetricDecryptor : public SymmetricCipher<ISymmetricDecryptor>
{
public:
    CryptoResult decrypt(io::IStreamBytes* in, io::OStreamBytes* out, const SecretBytes& key,
                         IDecryptCallback* callback, void* userData) override;
    CryptoResult decrypt(io::IStreamBytes* in, io::OStreamBytes* out, const SecretBytes& key,
                         const SecretBytes& iv, IDecryptCallback* callback, void* userData) override;
    CryptoResult decrypt(io::IStreamBytes* in, io::OStreamBytes* out, const SecretBytes& key,
                         const SecretBytes& iv, std::uint32_t chunkSize, std::uint32_t intervalMs,
                         IDecryptCallback* callback, void* userData) override;
    CryptoResult decryptWithPassword(io::IStreamBytes* in, io::OStreamBytes* out, const char* password,
                                     IDecryptCallback* callback, void* userData) override;
    CryptoResult decryptWithPassword(io::IStreamBytes* in, io::OStreamBytes* out, const char* password,
                                     std::uint32_t hashId, IDecryptCallback* callback,
                                     void* userData) override;
    CryptoResult decryptWithPassword(io::IStreamBytes* in, io::OStreamBytes* out, const char* password,
                                     std::uint32_t hashId, const SecretBytes& iv, std::uint32_t chunkSize,
                                     std::uint32_t intervalMs, IDecryptCallback* callback,
                                     void* userData) override;
};

} // namespace tessaly::crypto
