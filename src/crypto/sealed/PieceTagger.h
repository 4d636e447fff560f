#pragma once

#include "crypto/CryptoResult.h"
#include "crypto/key/IHashEngine.h"
#include "crypto/sealed/SealedFormat.h"
#include "lib/secret/Secret.h"

#include <array>
#include <cstdint>
#include <memory>
#include <span>

namespace tessaly::crypto {

using PieceTag = std::array<std::uint8_t, TagSize>;

/// Makes the tags of an inner file's pieces, in their order. One thread at a time.
class PieceTagger
{
public:
    CryptoResult setKey(const SecretBytes& tagKey);
    CryptoResult tagNext(std::span<const std::uint8_t> piece, bool isLast, PieceTag& tag);

private:
    std::unique_ptr<IHashEngine> m_hmac;
    std::uint64_t m_index = 0;
};

} // namespace tessaly::crypto
