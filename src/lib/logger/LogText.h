#pragma once

#include <string>
#include <string_view>

namespace tessaly::logger::internal {

/// Appends the text as valid UTF-8 that stays on one line: a line feed becomes "\n", every byte of
/// any other control character, line separator or malformed sequence "\xNN".
void appendOneLine(std::string& line, std::string_view text);

} // namespace tessaly::logger::internal
