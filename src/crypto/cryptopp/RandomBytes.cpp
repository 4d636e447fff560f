#include "crypto/key/RandomBytes.h"

#include "crypto/Guard.h"

#include <cryptopp/osrng.h>

namespace tessaly::crypto {

CryptoResult randomBytes(std::size_t count, SecretBytes& bytes)
{
    const CryptoResult result = guarded({}, [&] {
        bytes = SecretBytes(count);
        CryptoPP::OS_GenerateRandomBlock(false, bytes.data(), bytes.size());
    });
    if (!result.ok())
        bytes.clear();
    return result;
}

} // namespace tessaly::crypto
