#pragma once

#include "crypto/CryptoResult.h"

#include <cryptopp/cryptlib.h>

#include <cstdint>

namespace tessaly::cryptopp {

/// The one place where Crypto++ exceptions become results: (53, error type) with the stage as the
/// second pair.
template <class Call>
crypto::CryptoResult guarded(ResultCode stage, Call call) noexcept
{
    const auto caught = [stage](CryptoPP::Exception::ErrorType type) {
        return crypto::CryptoResult({err::CategoryCryptoPP, static_cast<std::uint32_t>(type)}, stage);
    };
    try {
        call();
        return {};
    } catch (const CryptoPP::Exception& exception) {
        return caught(exception.GetErrorType());
    } catch (...) {
        return caught(CryptoPP::Exception::OTHER_ERROR);
    }
}

} // namespace tessaly::cryptopp
