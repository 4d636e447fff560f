#include "crypto/key/ThrowAwayCipher.h"

#include "crypto/Guard.h"
#include "crypto/key/RandomBytes.h"
#include "lib/secret/SecretHeap.h"

#include <cryptopp/aes.h>
#include <cryptopp/modes.h>

namespace tessaly::crypto {

namespace {

class ThrowAwayCipher final : public IThrowAwayCipher, public InSecretHeap
{
public:
    explicit ThrowAwayCipher(const SecretBytes& key)
    {
        // The key is never used again, so that the counter may begin anywhere.
        const CryptoPP::byte counter[CryptoPP::AES::BLOCKSIZE] = {};
        m_cipher.SetKeyWithIV(key.data(), key.size(), counter);
    }

    CryptoResult apply(std::uint64_t position, std::uint8_t* bytes, std::size_t count) override
    {
        return guarded(err::library(err::ProcessingFailed), [&] {
            m_cipher.Seek(position);
            m_cipher.ProcessData(bytes, bytes, count);
        });
    }

private:
    CryptoPP::CTR_Mode<CryptoPP::AES>::Encryption m_cipher;
};

} // namespace

CryptoResult makeThrowAwayCipher(std::unique_ptr<IThrowAwayCipher>& cipher)
{
    SecretBytes key;
    const CryptoResult result = randomBytes(CryptoPP::AES::MAX_KEYLENGTH, key);
    if (!result.ok())
        return result;
    return guarded(err::library(err::KeyingFailed), [&] { cipher = std::make_unique<ThrowAwayCipher>(key); });
}

} // namespace tessaly::crypto
