#pragma once

#include <cstdint>
#include <string>

namespace tessaly::i18n::internal {

/// Values of Translation::fileType.
enum TranslationFileType : std::uint32_t {
    UnknownFileType = 0,
    PropertiesFileType = 1,
    TranslationsFileType = 16,
    DllFileType = 32,
};

/// One entry of the translation list, its texts in UTF-8 as they stand in the file.
struct Translation
{
    std::string language;    ///< "de"; with country the tag of the locale
    std::string country;     ///< "DE"
    std::string displayName; ///< the name to show in the list of languages
    std::string file;        ///< relative to the folder of the list
    std::uint32_t fileType = UnknownFileType;
    std::string description;
    std::string disabled; ///< hides the entry when it means yes

    std::string tag() const { return language + '-' + country; }
    bool isEnabled() const;

    friend bool operator==(const Translation&, const Translation&) = default;
};

} // namespace tessaly::i18n::internal
