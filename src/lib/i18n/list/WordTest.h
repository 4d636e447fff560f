#pragma once

#include <optional>
#include <string_view>

namespace tessaly::i18n {

/// What a yes/no text of a configuration file says, ASCII letter case ignored; nothing when it is
/// neither a yes nor a no.
std::optional<bool> readYesNo(std::string_view text);

} // namespace tessaly::i18n
