#pragma once

#include <cstdint>
#include <string>

namespace tessaly::err {

/// Knows the texts of error codes.
template <class TChar>
class IErrMsg
{
public:
    virtual ~IErrMsg() = default;

    /// Fills text and answers true, or answers false when there is no text for the code.
    virtual bool lookup(std::uint32_t category, std::uint32_t code, std::basic_string<TChar>& text) const = 0;
};

} // namespace tessaly::err
