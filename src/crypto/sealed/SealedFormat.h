#pragma once

#include "crypto/format/FileHeader.h"

#include <algorithm>
#include <cstdint>
#include <optional>

namespace tessaly::crypto {

/// A sealed file: a salt, then the inner file in pieces, each with its tag. The inner file is what the
/// plain format writes; docs/FILE_FORMAT.md has it all. In bytes.
inline constexpr std::uint64_t SealSaltSize = 32;
inline constexpr std::uint64_t PieceSize = 65536;
inline constexpr std::uint64_t TagSize = 16;
inline constexpr std::uint64_t SealedPieceSize = PieceSize + TagSize;
inline constexpr std::uint64_t TagKeySize = 32;

/// Only an empty inner file has an empty piece.
constexpr std::uint64_t sealedSize(std::uint64_t innerSize)
{
    const std::uint64_t pieces = std::max<std::uint64_t>((innerSize + PieceSize - 1) / PieceSize, 1);
    return SealSaltSize + innerSize + pieces * TagSize;
}

/// Nothing when no sealed file has that size.
constexpr std::optional<std::uint64_t> innerSize(std::uint64_t sealed)
{
    if (sealed < SealSaltSize + TagSize)
        return {};
    const std::uint64_t rest = sealed - SealSaltSize;
    const std::uint64_t inner = rest - (rest - 1) / SealedPieceSize * TagSize - TagSize;
    const bool isPlainFormat = inner == 0 || inner > HeaderSize;
    return isPlainFormat && sealedSize(inner) == sealed ? std::optional(inner) : std::nullopt;
}

} // namespace tessaly::crypto
