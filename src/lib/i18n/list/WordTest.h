#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessaly::i18n {

/// The text with "A" to "Z" in lower case, every other byte as it is.
std::string asciiLower(std::string_view text);

/// What a yes/no text of a configuration file says, ASCII letter case ignored; nothing when it is
/// neither a yes nor a no.
std::optional<bool> readYesNo(std::string_view text);

} // namespace tessaly::i18n
