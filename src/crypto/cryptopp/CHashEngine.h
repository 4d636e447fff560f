#pragma once

#include "crypto/Guard.h"
#include "crypto/key/IHashEngine.h"

#include <cryptopp/cryptlib.h>

namespace tessaly::cryptopp {

/// A Crypto++ hash under its id.
template <class Algorithm, std::uint32_t Id>
class CHashEngine final : public crypto::IHashEngine
{
public:
    std::uint32_t digestLength() const override { return Algorithm::DIGESTSIZE; }

    crypto::CryptoResult update(const void* bytes, std::size_t count) override
    {
        return crypto::guarded({},
                               [&] { m_algorithm.Update(static_cast<const CryptoPP::byte*>(bytes), count); });
    }

    crypto::CryptoResult finish(std::uint8_t* digest) override
    {
        return crypto::guarded({}, [&] { m_algorithm.Final(digest); });
    }

private:
    Algorithm m_algorithm;
};

} // namespace tessaly::cryptopp
