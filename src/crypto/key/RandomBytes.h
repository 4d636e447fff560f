#pragma once

#include "crypto/CryptoResult.h"
#include "lib/secret/Secret.h"

#include <cstddef>

namespace tessaly::crypto {

/// Fills a vector with `count` bytes of the operating system's generator, fit for keys. After a
/// failure the vector is empty.
CryptoResult randomBytes(std::size_t count, SecretBytes& bytes);

} // namespace tessaly::crypto
