#pragma once

#include "crypto/CryptoResult.h"
#include "lib/secret/Secret.h"

#include <cstdint>

namespace tessaly::crypto {

/// Turns a zero-terminated password into exactly `keyLength` bytes: the hash of the whole password,
/// followed as far as needed by the hashes of a round prefix with the password's first 125 bytes.
/// On failure the key is empty: (5, 700) for an unknown hash, (5, 5) for a null password, module 53 for
/// an exception.
CryptoResult deriveKey(SecretBytes& key, std::uint32_t keyLength, std::uint32_t hashId, const char* password);

} // namespace tessaly::crypto
