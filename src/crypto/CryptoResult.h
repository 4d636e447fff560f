#pragma once

#include "lib/err/ErrorCodes.h"
#include "lib/err/ResultCode.h"

#include <cstdint>

namespace tessaly::crypto {

/// The outcome of a crypto operation: two (category, code) pairs; all zero is success. The second
/// pair is the cause beneath (a stream's own error) or, for a caught Crypto++ exception (module 53,
/// code its Crypto++ error type), the stage at which it was thrown.
struct [[nodiscard]] CryptoResult
{
    std::uint32_t module = 0;
    std::uint32_t code = 0;
    std::uint32_t subModule = 0;
    std::uint32_t subCode = 0;

    constexpr CryptoResult() = default;
    constexpr CryptoResult(ResultCode first, ResultCode second = {})
        : module(first.category), code(first.code), subModule(second.category), subCode(second.code)
    {
    }
    constexpr CryptoResult(err::Code first, ResultCode second = {})
        : CryptoResult(err::library(first), second)
    {
    }

    constexpr bool ok() const { return *this == CryptoResult(); }
    constexpr ResultCode first() const { return {module, code}; }
    constexpr ResultCode second() const { return {subModule, subCode}; }
    friend constexpr bool operator==(const CryptoResult&, const CryptoResult&) = default;
};

} // namespace tessaly::crypto
