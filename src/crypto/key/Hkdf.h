#pragma once

#include "crypto/CryptoResult.h"
#include "lib/secret/Secret.h"

#include <cstddef>
#include <string_view>

namespace tessaly::crypto {

/// The two halves of HKDF (RFC 5869) with SHA-512. After a failure the result is empty.

/// A root of 64 bytes.
CryptoResult hkdfExtract(const SecretBytes& salt, const SecretBytes& secret, SecretBytes& root);
/// Up to 16320 bytes; each text gives others.
CryptoResult hkdfExpand(const SecretBytes& root, std::string_view info, std::size_t count,
                        SecretBytes& bytes);

} // namespace tessaly::crypto
