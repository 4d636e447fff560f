#pragma once

#include "lib/secret/Secret.h"

#include <cstddef>
#include <cstdint>

namespace tessaly::crypto {

/// Equal slots in one block of memory, each at the start of a page so that a stream may hand it to the
/// disk as it is. Wiped when it goes.
class BufferRing
{
public:
    /// Throws when there is not so much memory.
    void allocate(std::size_t slots, std::size_t slotSize);
    std::uint8_t* slot(std::size_t index) { return m_first + index * m_stride; }

private:
    SecretBytes m_bytes;
    std::uint8_t* m_first = nullptr;
    std::size_t m_stride = 0;
};

/// How a stream is cut, in bytes: into pieces of whole chunks, with a slot for each of some.
struct RingPlan
{
    std::uint64_t pieceSize;
    std::size_t slots; ///< 1 when nothing is read ahead, else at least 4
};

/// One slot of one chunk for a small stream, which is done before helpers would have come to life.
RingPlan planRing(std::uint64_t streamSize, std::uint64_t chunkSize);

} // namespace tessaly::crypto
