#include "crypto/key/Hmac.h"

#include "crypto/Guard.h"
#include "lib/secret/SecretHeap.h"

#include <cryptopp/hmac.h>
#include <cryptopp/misc.h>
#include <cryptopp/sha.h>

namespace tessaly::crypto {

namespace {

template <class Hash>
class HmacEngine final : public IHashEngine, public InSecretHeap
{
public:
    explicit HmacEngine(const SecretBytes& key) : m_hmac(key.data(), key.size()) {}

    std::uint32_t digestLength() const override { return Hash::DIGESTSIZE; }

    CryptoResult update(const void* bytes, std::size_t count) override
    {
        return guarded({}, [&] { m_hmac.Update(static_cast<const CryptoPP::byte*>(bytes), count); });
    }

    CryptoResult finish(std::uint8_t* digest) override
    {
        return guarded({}, [&] { m_hmac.Final(digest); });
    }

private:
    CryptoPP::HMAC<Hash> m_hmac;
};

} // namespace

CryptoResult makeHmac(HmacHash hash, const SecretBytes& key, std::unique_ptr<IHashEngine>& hmac)
{
    return guarded({}, [&] {
        if (hash == HmacHash::Sha256)
            hmac = std::make_unique<HmacEngine<CryptoPP::SHA256>>(key);
        else
            hmac = std::make_unique<HmacEngine<CryptoPP::SHA512>>(key);
    });
}

bool isEqualInConstantTime(const std::uint8_t* first, const std::uint8_t* second, std::size_t count)
{
    return CryptoPP::VerifyBufsEqual(first, second, count);
}

} // namespace tessaly::crypto
