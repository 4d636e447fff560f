#pragma once

#include "crypto/CryptoResult.h"

#include <type_traits>

namespace tessaly::crypto {

/// The exception at hand as a result: (53, its Crypto++ error type; 6 for any that is not the
/// library's) with the stage as the second pair. Only from within a catch block.
CryptoResult caughtException(ResultCode stage) noexcept;

/// The one place where exceptions end: calls something that may throw and gives its result, if it has
/// one, or that of the exception.
template <class Call>
CryptoResult guarded(ResultCode stage, Call call) noexcept
{
    try {
        if constexpr (!std::is_void_v<decltype(call())>)
            return call();
        else
            call();
        return {};
    } catch (...) {
        return caughtException(stage);
    }
}

} // namespace tessaly::crypto
