#pragma once

#include "lib/secret/Secret.h"

#include <optional>
#include <string_view>

namespace tessaly {

/// Decodes hexadecimal text: white space is skipped anywhere, digits of either case are taken in
/// pairs. Nothing for any other character or an odd number of digits.
std::optional<SecretBytes> decodeHex(std::string_view text);

} // namespace tessaly
