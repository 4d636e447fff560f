#pragma once

#include "lib/secret/Secret.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace tessaly {

/// Decodes hexadecimal text: white space is skipped anywhere, digits of either case are taken in
/// pairs. Nothing for any other character or an odd number of digits.
std::optional<SecretBytes> decodeHex(std::string_view text);

/// Upper-case digits in groups of four bytes with a blank between, which decodeHex takes back.
SecretText encodeHex(std::span<const std::uint8_t> bytes);

} // namespace tessaly
