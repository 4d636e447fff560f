#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tessaly::text {

/// Surrogates, which UTF-8 does not have, but names of files on some systems do.
enum class Surrogates { Refused, Taken };

/// Length of the well-formed sequence (RFC 3629) at the start of a text that is not empty, and its code
/// point; 0 for none.
std::size_t decodeUtf8(std::string_view text, unsigned& codePoint,
                       Surrogates surrogates = Surrogates::Refused);

void appendUtf8(std::string& text, unsigned codePoint);

} // namespace tessaly::text
