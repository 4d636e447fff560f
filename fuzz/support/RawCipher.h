#pragma once

#include "crypto/cipher/ICipherEngine.h"
#include "fuzz/support/Choices.h"
#include "lib/secret/Secret.h"

#include <cstdint>
#include <memory>
#include <span>

namespace fuzz {

/// A cipher as such, with which a harness can encipher any plaintext, also one that no encryptor writes.
struct RawCipher
{
    using Maker = std::unique_ptr<tessaly::crypto::ICipherEngine> (*)();

    std::uint32_t id;
    std::uint32_t keyLength;
    std::uint32_t ivLength;
    std::uint32_t blockLength;
    Maker encryption;
    Maker decryption;
};

/// One of each block length of the catalogue, and stream ciphers that can and cannot start anywhere.
std::span<const RawCipher> rawCiphers();

/// All bytes at once; what is left behind the last whole block is dropped.
Bytes processed(RawCipher::Maker maker, const tessaly::SecretBytes& key, const tessaly::SecretBytes& iv,
                Bytes bytes);

inline tessaly::SecretBytes secret(const Bytes& bytes)
{
    return {bytes.begin(), bytes.end()};
}

} // namespace fuzz
