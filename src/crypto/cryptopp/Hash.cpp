#include "crypto/key/Hash.h"

#include "crypto/cryptopp/CHash.h"
#include "crypto/cryptopp/CHashEngine.h"

#include <cryptopp/sha.h>
#include <cryptopp/sha3.h>

namespace tessaly::crypto {

namespace {

template <class Algorithm, std::uint32_t Id>
CryptoResult hashWith(const void* bytes, std::size_t count, SecretBytes& digest)
{
    return cryptopp::CHash<cryptopp::CHashEngine<Algorithm, Id>>().hash(bytes, count, digest);
}

} // namespace

CryptoResult hash(std::uint32_t hashId, const void* bytes, std::size_t count, SecretBytes& digest)
{
    switch (hashId) {
    case 11:
        return hashWith<CryptoPP::SHA256, 11>(bytes, count, digest);
    case 20:
        return hashWith<CryptoPP::SHA3_224, 20>(bytes, count, digest);
    case 21:
        return hashWith<CryptoPP::SHA3_256, 21>(bytes, count, digest);
    case 22:
        return hashWith<CryptoPP::SHA3_384, 22>(bytes, count, digest);
    case 23:
        return hashWith<CryptoPP::SHA3_512, 23>(bytes, count, digest);
    default:
        digest.clear();
        return err::UnknownHash;
    }
}

} // namespace tessaly::crypto
