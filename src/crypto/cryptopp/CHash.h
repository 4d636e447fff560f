#pragma once

#include "crypto/Guard.h"
#include "crypto/key/IHash.h"

namespace tessaly::cryptopp {

/// One-shot hashing over a hash engine.
template <class Engine>
class CHash final : public crypto::IHash
{
public:
    crypto::CryptoResult hash(const void* bytes, std::size_t count, SecretBytes& digest) override
    {
        return crypto::guarded({}, [&]() -> crypto::CryptoResult {
            digest.clear();
            if (const crypto::CryptoResult result = m_engine.update(bytes, count); !result.ok())
                return result;
            digest.resize(m_engine.digestLength());
            return m_engine.finish(digest.data());
        });
    }

private:
    Engine m_engine;
};

} // namespace tessaly::cryptopp
