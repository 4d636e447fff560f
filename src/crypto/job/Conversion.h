#pragma once

#include "crypto/CryptoResult.h"
#include "crypto/cipher/ISymmetricCipher.h"
#include "crypto/job/FileJob.h"
#include "io/IStreamFile.h"
#include "io/OStreamBytes.h"

namespace tessaly::crypto {

/// How the conversion of a file's bytes ended.
struct Conversion
{
    CryptoResult result;
    bool cancelled = false;
    bool sealed = false; ///< the encrypted file is a sealed one
};

/// Takes all of the input through the engine, into or out of the plain format or the sealed one. The
/// password is gone afterwards. May throw when the memory is short.
Conversion convert(ISymmetricEncryptor& encryptor, FileJobRequest& request, io::IStreamFile<wchar_t>& in,
                   io::OStreamBytes& out, IFileJobObserver& observer);
/// Finds the format out: the plain one first, and the sealed one when the header does not verify and a
/// sealed file can have that size.
Conversion convert(ISymmetricDecryptor& decryptor, FileJobRequest& request, io::IStreamFile<wchar_t>& in,
                   io::OStreamBytes& out, IFileJobObserver& observer);

} // namespace tessaly::crypto
