#pragma once

#include <cstdint>
#include <string>

namespace tessaly::i18n {

/// A language that the user can choose.
struct Language
{
    std::uint32_t lcid = 0;
    std::string displayName; ///< UTF-8

    friend bool operator==(const Language&, const Language&) = default;
};

} // namespace tessaly::i18n
