#include "crypto/cipher/SymmetricDecryptor.h"

namespace tessaly::crypto {

CryptoResult SymmetricDecryptor::decrypt(io::IStreamBytes* in, io::OStreamBytes* out, const SecretBytes& key,
                                         IDecryptCallback* callback, void* userData)
{
    return decrypt(in, out, key, zeroIv(), callback, userData);
}

CryptoResult SymmetricDecryptor::decrypt(io::IStreamBytes* in, io::OStreamBytes* out, const SecretBytes& key,
                                         const SecretBytes& iv, IDecryptCallback* callback, void* userData)
{
    return decrypt(in, out, key, iv, DefaultChunkSize, DefaultProgressInterval, callback, userData);
}

CryptoResult SymmetricDecryptor::decrypt(io::IStreamBytes* in, io::OStreamBytes* out, const SecretBytes& key,
                                         const SecretBytes& iv, std::uint32_t chunkSize,
                                         std::uint32_t intervalMs, IDecryptCallback* callback, void* userData)
{
    return run({in, out, key, iv, chunkSize, intervalMs, false, callback, userData}, decryptStream);
}

CryptoResult SymmetricDecryptor::decryptWithPassword(io::IStreamBytes* in, io::OStreamBytes* out,
                                                     const char* password, IDecryptCallback* callback,
                                                     void* userData)
{
    return decryptWithPassword(in, out, password, passwordHash(), callback, userData);
}

CryptoResult SymmetricDecryptor::decryptWithPassword(io::IStreamBytes* in, io::OStreamBytes* out,
                                                     const char* password, std::uint32_t hashId,
                                                     IDecryptCallback* callback, void* userData)
{
    return decryptWithPassword(in, out, password, hashId, zeroIv(), DefaultChunkSize, DefaultProgressInterval,
                               callback, userData);
}

CryptoResult SymmetricDecryptor::decryptWithPassword(io::IStreamBytes* in, io::OStreamBytes* out,
                                                     const char* password, std::uint32_t hashId,
                                                     const SecretBytes& iv, std::uint32_t chunkSize,
                                                     std::uint32_t intervalMs, IDecryptCallback* callback,
                                                     void* userData)
{
    return withDerivedKey(password, hashId, [&](const SecretBytes& key) {
        return decrypt(in, out, key, iv, chunkSize, intervalMs, callback, userData);
    });
}

} // namespace tessaly::crypto
