#include "crypto/key/Hash.h"

#include "crypto/Guard.h"
#include "crypto/cryptopp/CHash.h"
#include "crypto/cryptopp/CHashEngine.h"

#include <cryptopp/sha.h>
#include <cryptopp/sha3.h>

#include <algorithm>
#include <array>

namespace tessaly::crypto {

namespace {

using HashFunction = CryptoResult (*)(const void* bytes, std::size_t count, SecretBytes& digest);

struct HashRow
{
    std::uint32_t id = 0;
    std::uint32_t digestLength = 0;
    std::string_view name = {};
    HashFunction function = nullptr; ///< none for a hash that is not built in
};

template <class Algorithm, std::uint32_t Id>
constexpr HashRow builtIn(std::string_view name)
{
    return {Id, Algorithm::DIGESTSIZE, name,
            [](const void* bytes, std::size_t count, SecretBytes& digest) -> CryptoResult {
                return cryptopp::CHash<cryptopp::CHashEngine<Algorithm, Id>>().hash(bytes, count, digest);
            }};
}

/// The numbering is shared with other programs of the library; only the built-in ones are used here.
constexpr std::array Hashes{
    HashRow{1, 20},
    HashRow{10, 28},
    builtIn<CryptoPP::SHA256, 11>("SHA-256"),
    HashRow{12, 48},
    HashRow{13, 64},
    builtIn<CryptoPP::SHA3_224, 20>("SHA3-224"),
    builtIn<CryptoPP::SHA3_256, 21>("SHA3-256"),
    builtIn<CryptoPP::SHA3_384, 22>("SHA3-384"),
    builtIn<CryptoPP::SHA3_512, 23>("SHA3-512"),
    HashRow{30, 24},
    HashRow{40, 64},
    HashRow{50, 16},
    HashRow{51, 20},
    HashRow{52, 32},
    HashRow{53, 40},
    HashRow{300, 16},
    HashRow{301, 16},
    HashRow{303, 16},
    HashRow{304, 32},
    HashRow{400, 4},
    HashRow{401, 4},
};

HashRow findHash(std::uint32_t id)
{
    const auto* found = std::ranges::find(Hashes, id, &HashRow::id);
    return found != Hashes.end() ? *found : HashRow{};
}

} // namespace

std::uint32_t digestLength(std::uint32_t hashId)
{
    return findHash(hashId).digestLength;
}

std::string_view hashName(std::uint32_t hashId)
{
    return findHash(hashId).name;
}

CryptoResult hash(std::uint32_t hashId, const void* bytes, std::size_t count, SecretBytes& digest)
{
    digest.clear();
    const HashFunction function = findHash(hashId).function;
    if (function == nullptr)
        return err::UnknownHash;
    return guarded({}, [&] { return function(bytes, count, digest); });
}

} // namespace tessaly::crypto
