#pragma once

#include "crypto/CryptoResult.h"
#include "crypto/key/IHashEngine.h"
#include "crypto/sealed/SealedFormat.h"
#include "lib/secret/Secret.h"

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace tessaly::crypto {

using PieceTag = std::array<std::uint8_t, TagSize>;

/// So many pieces are tagged at a time: enough that threads for them pay.
inline constexpr std::uint64_t PiecesAtOnce = 16;

/// Where pieces shall begin in memory, beyond a multiple of 4: behind the 9 bytes that are hashed before a
/// piece, SHA-256's blocks are then at the ends of words, without which Crypto++ copies each of them.
inline constexpr std::size_t PieceAlignment = 1;

/// Consecutive pieces of a sealed file, each with its tag or room for it behind it. Only the last may be
/// shorter than PieceSize.
struct SealedPieces
{
    std::span<const std::uint8_t> bytes;
    std::uint64_t firstIndex; ///< in the file
    bool endsFile;

    std::size_t count() const { return (bytes.size() + SealedPieceSize - 1) / SealedPieceSize; }
    /// Where the piece's own bytes begin, and what they are.
    static std::size_t begin(std::size_t i) { return i * SealedPieceSize; }
    std::span<const std::uint8_t> piece(std::size_t i) const;
};

/// Makes the tags of pieces, on several threads where there are several pieces and cores. One caller at a
/// time.
class PieceTagger
{
public:
    CryptoResult setKey(const SecretBytes& tagKey);
    CryptoResult tag(const SealedPieces& pieces, std::vector<PieceTag>& tags);

private:
    std::vector<std::unique_ptr<IHashEngine>> m_hmacs; ///< one for each thread
};

} // namespace tessaly::crypto
