#pragma once

#include <string>
#include <string_view>

namespace tessaly::i18n {

/// The text with "A" to "Z" in lower case, every other byte as it is.
inline std::string asciiLower(std::string_view text)
{
    std::string lower(text);
    for (char& c : lower)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return lower;
}

} // namespace tessaly::i18n
