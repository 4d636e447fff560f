#include "crypto/Guard.h"

#include <cryptopp/cryptlib.h>

namespace tessaly::crypto {

CryptoResult caughtException(ResultCode stage) noexcept
{
    const auto result = [stage](CryptoPP::Exception::ErrorType type) {
        return CryptoResult({err::CategoryCryptoPP, static_cast<std::uint32_t>(type)}, stage);
    };
    try {
        throw;
    } catch (const CryptoPP::Exception& exception) {
        return result(exception.GetErrorType());
    } catch (...) {
        return result(CryptoPP::Exception::OTHER_ERROR);
    }
}

} // namespace tessaly::crypto
