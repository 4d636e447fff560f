#include "crypto/key/RandomBytes.h"

#include "crypto/Guard.h"
#include "lib/platform/Random.h"

namespace tessaly::crypto {

CryptoResult randomBytes(std::size_t count, SecretBytes& bytes)
{
    const CryptoResult result = guarded({}, [&]() -> CryptoResult {
        bytes = SecretBytes(count);
        return platform::fillRandomly(bytes.data(), bytes.size());
    });
    if (!result.ok())
        bytes.clear();
    return result;
}

} // namespace tessaly::crypto
