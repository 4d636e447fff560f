#include "crypto/key/RandomBytes.h"

#include "crypto/cryptopp/Guard.h"

#include <cryptopp/osrng.h>

namespace tessaly::crypto {

CryptoResult randomBytes(std::size_t count, SecretBytes& bytes)
{
    bytes = SecretBytes(count);
    const CryptoResult result = cryptopp::guarded(
        {}, [&bytes] { CryptoPP::OS_GenerateRandomBlock(false, bytes.data(), bytes.size()); });
    if (!result.ok())
        bytes.clear();
    return result;
}

} // namespace tessaly::crypto
