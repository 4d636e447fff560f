#include "crypto/sealed/SealedKeys.h"

#include "crypto/key/Hkdf.h"
#include "crypto/sealed/SealedFormat.h"

#include <string>

namespace tessaly::crypto {

namespace {

/// Part of the format.
std::string infoText(const char* role, const ISymmetricEngine& algorithm)
{
    return std::string("quillet-sealed-1/") + role + '/' + std::to_string(algorithm.algorithmId());
}

} // namespace

CryptoResult rootOfKeyAndIv(const SecretBytes& key, const SecretBytes& iv, const ISymmetricEngine& algorithm,
                            const SecretBytes& salt, SecretBytes& root)
{
    if (key.size() != algorithm.keyLength())
        return err::KeyLengthDiffers;
    if (iv.size() != algorithm.ivLength())
        return err::IvLengthDiffers;
    SecretBytes secret;
    secret.reserve(key.size() + iv.size());
    secret.append(key.begin(), key.end());
    secret.append(iv.begin(), iv.end());
    return hkdfExtract(salt, secret, root);
}

CryptoResult expandRoot(const SecretBytes& root, const ISymmetricEngine& algorithm, SealedKeys& keys)
{
    CryptoResult result =
        hkdfExpand(root, infoText("cipher-key", algorithm), algorithm.keyLength(), keys.cipherKey);
    if (result.ok())
        result = hkdfExpand(root, infoText("iv", algorithm), algorithm.ivLength(), keys.iv);
    if (result.ok())
        result = hkdfExpand(root, infoText("tag-key", algorithm), TagKeySize, keys.tagKey);
    return result;
}

} // namespace tessaly::crypto
