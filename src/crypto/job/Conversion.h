#pragma once

#include "crypto/CryptoResult.h"
#include "crypto/cipher/ISymmetricCipher.h"
#include "crypto/job/FileJob.h"
#include "io/IRewindableBytes.h"
#include "io/OStreamBytes.h"

#include <cstdint>
#include <optional>

namespace tessaly::crypto {

/// How the conversion of a file's bytes ended.
struct Conversion
{
    CryptoResult result;
    bool cancelled = false;
    bool sealed = false; ///< the encrypted file is a sealed one
    /// After (5, 4003): the one that fits, and for a sealed file its root.
    std::optional<std::uint32_t> fittingAlgorithm;
    SealedRoot root;
};

/// Takes all of the input through the engine, into or out of the plain format or the sealed one. The
/// password is gone afterwards. May throw when the memory is short.
Conversion convert(ISymmetricEncryptor& encryptor, FileJobRequest& request, io::IRewindableBytes& in,
                   io::OStreamBytes& out, IFileJobObserver& observer);
/// Finds the format out: the plain one first, and the sealed one when the header does not verify, fits no
/// other algorithm, and a sealed file can have that size.
Conversion convert(ISymmetricDecryptor& decryptor, FileJobRequest& request, io::IRewindableBytes& in,
                   io::OStreamBytes& out, IFileJobObserver& observer);

} // namespace tessaly::crypto
