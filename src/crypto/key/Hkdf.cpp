#include "crypto/key/Hkdf.h"

#include "crypto/Guard.h"
#include "crypto/key/Hmac.h"

#include <utility>

namespace tessaly::crypto {

namespace {

CryptoResult hmacSha512(const SecretBytes& key, const SecretBytes& message, SecretBytes& digest)
{
    std::unique_ptr<IHashEngine> hmac;
    CryptoResult result = makeHmac(HmacHash::Sha512, key, hmac);
    if (result.ok())
        result = hmac->update(message.data(), message.size());
    if (!result.ok())
        return result;
    digest = SecretBytes(hmac->digestLength());
    return hmac->finish(digest.data());
}

} // namespace

CryptoResult hkdfExtract(const SecretBytes& salt, const SecretBytes& secret, SecretBytes& root)
{
    root.clear();
    return guarded({}, [&] { return hmacSha512(salt, secret, root); });
}

CryptoResult hkdfExpand(const SecretBytes& root, std::string_view info, std::size_t count, SecretBytes& bytes)
{
    bytes.clear();
    return guarded({}, [&] {
        SecretBytes all;
        SecretBytes digest;
        CryptoResult result;
        for (std::uint8_t round = 1; result.ok() && all.size() < count; ++round) {
            SecretBytes message = digest;
            message.append(info.begin(), info.end());
            message.push_back(round);
            result = hmacSha512(root, message, digest);
            all.append(digest.begin(), digest.end());
        }
        if (result.ok()) {
            all.resize(count);
            bytes = std::move(all);
        }
        return result;
    });
}

} // namespace tessaly::crypto
