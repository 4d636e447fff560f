#pragma once

#include <cstdint>

namespace tessaly {

/// The outcome of an operation: (0, 0) is success, category 1 carries an operating-system error
/// number, category 5 one of the codes in ErrorCodes.h. Returned by value instead of exceptions.
struct [[nodiscard]] ResultCode
{
    std::uint32_t category = 0;
    std::uint32_t code = 0;

    constexpr bool ok() const { return category == 0 && code == 0; }
    friend constexpr bool operator==(const ResultCode&, const ResultCode&) = default;
};

} // namespace tessaly
