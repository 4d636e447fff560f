#pragma once

#include "lib/secret/Secret.h"

#include <optional>
#include <string>
#include <string_view>

namespace thisapp {

/// What a saved key and initialization vector are read back as.
struct SKeyFile
{
    std::string algorithm; ///< the display name; empty when the text names none
    tessaly::SecretBytes key;
    tessaly::SecretBytes iv;
};

/// Key and IV in hexadecimal with their names and the algorithm's, for a person to keep. Never
/// translated, so that every copy of the program reads it.
tessaly::SecretText keyFileText(std::string_view algorithmName, const tessaly::SecretBytes& key,
                                const tessaly::SecretBytes& iv);

/// Reads what keyFileText wrote, also with other line ends, broken lines and text around it. Nothing for
/// a text without a key or IV, or where either is not hexadecimal.
std::optional<SKeyFile> parseKeyFile(std::string_view text);

} // namespace thisapp
