#pragma once

#include "crypto/CryptoResult.h"
#include "crypto/cipher/ISymmetricEngine.h"
#include "crypto/job/FileJob.h"
#include "crypto/sealed/SealedKeys.h"

namespace tessaly::crypto {

/// The root of a sealed file with that salt: the one that the request has, if it is that file's, else made
/// of its secret. The password is given apart, as it is gone when it is hashed. `cancelled` tells of a stop
/// before or after the hashing; the root is then of no use.
CryptoResult makeRoot(const FileJobRequest& request, SecretText password, const ISymmetricEngine& algorithm,
                      const SecretBytes& salt, IFileJobObserver& observer, SealedRoot& root, bool& cancelled);

} // namespace tessaly::crypto
