#pragma once

#include <string>
#include <string_view>

namespace tessaly::logger {

/// Appends the text as valid UTF-8 that stays on one line and shows its characters in their order: a
/// line feed becomes "\n", every byte of any other control character, line separator, mark of the
/// writing direction or malformed sequence "\xNN".
void appendOneLine(std::string& line, std::string_view text);

} // namespace tessaly::logger
