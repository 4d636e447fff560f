#pragma once

#include "crypto/sealed/SealedKeys.h"
#include "fuzz/support/Choices.h"

#include <cstddef>
#include <optional>

/// The sealed format once more, as docs/FILE_FORMAT.md tells it, over whole files in memory.
namespace fuzz {

inline constexpr std::size_t SaltBytes = 32;
inline constexpr std::size_t TagBytes = 16;
inline constexpr std::size_t PieceBytes = 65536;
inline constexpr std::size_t SlotBytes = PieceBytes + TagBytes;

Bytes sealInnerFile(const Bytes& salt, const tessaly::SecretBytes& tagKey, const Bytes& inner);

struct Opening
{
    std::optional<std::size_t> wrongPiece; ///< the first whose tag is wrong
    Bytes inner;                           ///< the pieces before it
};

/// Nothing when no sealed file has that size.
std::optional<Opening> openSealedFile(const tessaly::SecretBytes& tagKey, const Bytes& file);
bool canBeSealed(std::size_t size);

/// Swaps, drops, doubles or borrows pieces.
void shuffle(Choices& choices, Bytes& file, const Bytes& other);

} // namespace fuzz
