#include "crypto/RandomBytes.h"

#include <cryptopp/osrng.h>

namespace tessaly::crypto {

CryptoResult randomBytes(std::size_t count, SecretBytes& bytes)
{
    bytes.assign(count, 0);
    try {
        CryptoPP::OS_GenerateRandomBlock(false, bytes.data(), bytes.size());
        return {};
    } catch (const CryptoPP::Exception& exception) {
        bytes.clear();
        return ResultCode{err::CategoryCryptoPP, static_cast<std::uint32_t>(exception.GetErrorType())};
    }
}

} // namespace tessaly::crypto
