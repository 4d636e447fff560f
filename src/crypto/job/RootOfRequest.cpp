#include "crypto/job/RootOfRequest.h"

#include <utility>

namespace tessaly::crypto {

CryptoResult makeRoot(const FileJobRequest& request, SecretText password, const ISymmetricEngine& algorithm,
                      const SecretBytes& salt, IFileJobObserver& observer, SealedRoot& root, bool& cancelled)
{
    if (request.root.isOf(salt)) {
        root = request.root;
        return {};
    }
    root.salt = salt;
    if (!request.passwordMode)
        return rootOfKeyAndIv(request.key, request.iv, algorithm, salt, root.bytes);
    observer.jobDerivingKey();
    cancelled = observer.isJobCancelled();
    if (cancelled)
        return {};
    const CryptoResult result = argon2id(std::move(password), salt, request.cost, root.bytes);
    cancelled = observer.isJobCancelled();
    return result;
}

} // namespace tessaly::crypto
