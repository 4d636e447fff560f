#pragma once

#include "crypto/CryptoResult.h"
#include "fuzz/support/Choices.h"
#include "fuzz/support/RawCipher.h"

/// The plain format once more, as docs/FILE_FORMAT.md tells it, over whole files in memory.
namespace fuzz {

/// What a plaintext is forged of.
struct Forgery
{
    Bytes data;            ///< behind the header
    std::uint64_t claimed; ///< the length in the header
    bool isHonest;         ///< nothing is wrong with it
    Bytes plaintext;       ///< header, data and zeros to whole blocks
};

/// A header that tells the truth most often; else another length, another algorithm, changed bytes.
Forgery forge(Choices& choices, const RawCipher& cipher);

struct Reading
{
    tessaly::crypto::CryptoResult result;
    Bytes data;
};

/// What must come of an encrypted file.
Reading readPlainFormat(const RawCipher& cipher, const tessaly::SecretBytes& key,
                        const tessaly::SecretBytes& iv, const Bytes& file);

/// Changes, cuts or lengthens a file in some places.
void damage(Choices& choices, Bytes& file);

} // namespace fuzz
