#pragma once

#include "crypto/CryptoResult.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

namespace tessaly::crypto {

/// The 56 bytes before the data in the plaintext of an encrypted file; docs/FILE_FORMAT.md has the
/// layout byte by byte.
inline constexpr std::size_t HeaderSize = 56;
/// The part of it that a reader needs: up to the end of the length.
inline constexpr std::size_t CheckedHeaderSize = 48;

/// Fills the header for a file of `length` bytes; with salt, six bytes of it come from the runtime's
/// pseudo-random generator.
CryptoResult makeHeader(std::uint32_t algorithmId, std::uint64_t length, bool salt,
                        std::span<std::uint8_t, HeaderSize> header);

/// Reads the length; (5, 4003) when the check value is not that of this algorithm and length.
CryptoResult verifyHeader(std::uint32_t algorithmId, std::span<const std::uint8_t, CheckedHeaderSize> header,
                          std::uint64_t& length);

/// `count` up to the next multiple of the block length; a stream cipher's 0 changes nothing.
constexpr std::uint64_t roundUp(std::uint64_t count, std::uint64_t block)
{
    return block == 0 ? count : (count + block - 1) / block * block;
}

constexpr std::uint64_t roundDown(std::uint64_t count, std::uint64_t block)
{
    return block == 0 ? count : count / block * block;
}

/// The chunk size that an operation really uses: room for the header and whole blocks, one block
/// more than needed when the wish is not a multiple of the block. It is part of no file, but chunk
/// boundaries are where stops and progress happen.
constexpr std::uint64_t effectiveChunkSize(std::uint64_t wish, std::uint64_t block)
{
    const std::uint64_t chunk = std::max<std::uint64_t>(wish, HeaderSize);
    if (block == 0)
        return chunk;
    const std::uint64_t headerBlocks = HeaderSize / block + 1;
    if (chunk <= block)
        return (std::max<std::uint64_t>(headerBlocks, 2) + 1) * block;
    if (chunk % block != 0)
        return (std::max(headerBlocks, chunk / block) + 1) * block;
    return chunk;
}

/// The size of the encrypted file of a plain file of `length` bytes.
constexpr std::uint64_t encryptedSize(std::uint64_t length, std::uint64_t block)
{
    return length == 0 ? 0 : roundUp(length + HeaderSize, block);
}

} // namespace tessaly::crypto
