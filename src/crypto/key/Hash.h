#pragma once

#include "crypto/CryptoResult.h"
#include "lib/secret/Secret.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tessaly::crypto {

inline constexpr std::uint32_t Sha3_256Id = 21;

/// In bytes; 0 for an unknown id.
std::uint32_t digestLength(std::uint32_t hashId);

/// For example "SHA3-256"; empty for a hash that is numbered but not built in.
std::string_view hashName(std::uint32_t hashId);

/// One-shot hash. (5, 700) for a hash that is not built in; a Crypto++ exception gives module 53.
CryptoResult hash(std::uint32_t hashId, const void* bytes, std::size_t count, SecretBytes& digest);

} // namespace tessaly::crypto
