#pragma once

#include "crypto/CryptoResult.h"
#include "crypto/cipher/ISymmetricEngine.h"
#include "lib/secret/Secret.h"

namespace tessaly::crypto {

/// What a sealed file is made with.
struct SealedKeys
{
    SecretBytes cipherKey;
    SecretBytes iv;
    SecretBytes tagKey;
};

/// What all keys of a sealed file are made of, and the salt in that file by which it is known. A secret.
struct SealedRoot
{
    SecretBytes salt;
    SecretBytes bytes;

    bool isOf(const SecretBytes& fileSalt) const { return !bytes.empty() && salt == fileSalt; }
};

/// The root of the user's own key and IV; that of a password is argon2id's. (5, 4040) and (5, 4041) for
/// lengths that are not the algorithm's.
CryptoResult rootOfKeyAndIv(const SecretBytes& key, const SecretBytes& iv, const ISymmetricEngine& algorithm,
                            const SecretBytes& salt, SecretBytes& root);

/// All that the algorithm needs, from the root.
CryptoResult expandRoot(const SecretBytes& root, const ISymmetricEngine& algorithm, SealedKeys& keys);

} // namespace tessaly::crypto
