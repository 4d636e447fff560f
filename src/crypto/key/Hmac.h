#pragma once

#include "crypto/CryptoResult.h"
#include "crypto/key/IHashEngine.h"
#include "lib/secret/Secret.h"

#include <cstddef>
#include <cstdint>
#include <memory>

namespace tessaly::crypto {

enum class HmacHash { Sha256, Sha512 };

/// HMAC (RFC 2104), keyed for message after message.
CryptoResult makeHmac(HmacHash hash, const SecretBytes& key, std::unique_ptr<IHashEngine>& hmac);

/// In a time that does not tell where the two differ.
bool isEqualInConstantTime(const std::uint8_t* first, const std::uint8_t* second, std::size_t count);

} // namespace tessaly::crypto
