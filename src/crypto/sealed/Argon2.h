#pragma once

#include "crypto/CryptoResult.h"
#include "lib/secret/Secret.h"

#include <cstdint>

namespace tessaly::crypto {

/// What one derivation takes. The default is part of the format of sealed files.
struct Argon2Cost
{
    std::uint32_t passes = 3;
    std::uint32_t kibibytes = 256 * 1024;
    std::uint32_t lanes = 4;
};

/// Argon2id, version 1.3 (RFC 9106): 64 bytes of a password. Takes time and memory, on the calling
/// thread alone, and cannot be interrupted. The memory that it needs is wiped, and so is the password, as
/// soon as it is hashed for the first time. (platform::outOfMemory, (5, 4042)) when the memory cannot be had,
/// (5, 4042) for any other failure; the result is then empty.
CryptoResult argon2id(SecretText password, const SecretBytes& salt, const Argon2Cost& cost,
                      SecretBytes& root);

} // namespace tessaly::crypto
