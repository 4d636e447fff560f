#include "crypto/cipher/SymmetricEncryptor.h"

namespace tessaly::crypto {

CryptoResult SymmetricEncryptor::encrypt(io::IStreamBytes* in, io::OStreamBytes* out, const SecretBytes& key,
                                         bool salt, IEncryptCallback* callback, void* userData)
{
    return encrypt(in, out, key, zeroIv(), salt, callback, userData);
}

CryptoResult SymmetricEncryptor::encrypt(io::IStreamBytes* in, io::OStreamBytes* out, const SecretBytes& key,
                                         const SecretBytes& iv, bool salt, IEncryptCallback* callback,
                                         void* userData)
{
    return encrypt(in, out, key, iv, DefaultChunkSize, DefaultProgressInterval, salt, callback, userData);
}

CryptoResult SymmetricEncryptor::encrypt(io::IStreamBytes* in, io::OStreamBytes* out, const SecretBytes& key,
                                         const SecretBytes& iv, std::uint32_t chunkSize,
                                         std::uint32_t intervalMs, bool salt, IEncryptCallback* callback,
                                         void* userData)
{
    return run({in, out, key, iv, chunkSize, intervalMs, salt, callback, userData}, encryptStream);
}

CryptoResult SymmetricEncryptor::encryptWithPassword(io::IStreamBytes* in, io::OStreamBytes* out,
                                                     const char* password, bool salt,
                                                     IEncryptCallback* callback, void* userData)
{
    return encryptWithPassword(in, out, password, passwordHash(), salt, callback, userData);
}

CryptoResult SymmetricEncryptor::encryptWithPassword(io::IStreamBytes* in, io::OStreamBytes* out,
                                                     const char* password, std::uint32_t hashId, bool salt,
                                                     IEncryptCallback* callback, void* userData)
{
    return encryptWithPassword(in, out, password, hashId, zeroIv(), DefaultChunkSize, DefaultProgressInterval,
                               salt, callback, userData);
}

CryptoResult SymmetricEncryptor::encryptWithPassword(io::IStreamBytes* in, io::OStreamBytes* out,
                                                     const char* password, std::uint32_t hashId,
                                                     const SecretBytes& iv, std::uint32_t chunkSize,
                                                     std::uint32_t intervalMs, bool salt,
                                                     IEncryptCallback* callback, void* userData)
{
    return withDerivedKey(password, hashId, [&](const SecretBytes& key) {
        return encrypt(in, out, key, iv, chunkSize, intervalMs, salt, callback, userData);
    });
}

} // namespace tessaly::crypto
