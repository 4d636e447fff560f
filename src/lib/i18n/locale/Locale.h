#pragma once

#include <cstdint>
#include <string_view>

namespace tessaly::i18n::internal {

/// One row of the locale catalogue; its texts live as long as the program. Several rows may share
/// a tag (Latin and Cyrillic Serbian, for example), so the LCID is what identifies a locale.
struct Locale
{
    std::uint32_t lcid = 0;              ///< Windows locale identifier, 1033 for "en-US"
    std::uint32_t primaryLanguageId = 0; ///< low ten bits of the LCID
    std::uint32_t subLanguageId = 0;     ///< the bits above them
    std::string_view displayName;        ///< "English (United States)"
    std::string_view languageName;       ///< "English"
    std::string_view countryName;        ///< "United States"
    std::string_view tag;                ///< "en-US"
    std::string_view languageCode;       ///< "en"
    std::string_view countryCode;        ///< "US"

    friend constexpr bool operator==(const Locale&, const Locale&) = default;
};

} // namespace tessaly::i18n::internal
