#include "crypto/cipher/BufferRing.h"

#include "crypto/format/FileHeader.h"

#include <algorithm>
#include <memory>

namespace tessaly::crypto {

namespace {

constexpr std::size_t Page = 4096;
constexpr std::uint64_t SmallStream = 256 << 10;
/// Long enough that handing over between threads costs nothing, short enough for a prompt stop.
constexpr std::uint64_t PieceBytes = 256 << 10;
/// Two such rings are the memory of an operation; the disk may pause for their length.
constexpr std::uint64_t RingBytes = 4 << 20;
constexpr std::uint64_t FewestSlots = 4;

} // namespace

void BufferRing::allocate(std::size_t slots, std::size_t slotSize)
{
    m_stride = roundUp(slotSize, Page);
    m_bytes = SecretBytes(slots * m_stride + Page);
    void* first = m_bytes.data();
    std::size_t space = m_bytes.size();
    m_first = static_cast<std::uint8_t*>(std::align(Page, slots * m_stride, first, space));
}

RingPlan planRing(std::uint64_t streamSize, std::uint64_t chunkSize)
{
    if (streamSize <= SmallStream || chunkSize > RingBytes / FewestSlots)
        return {chunkSize, 1};
    const std::uint64_t wish = std::min(PieceBytes, streamSize / (2 * FewestSlots));
    const std::uint64_t pieceSize = std::max(roundDown(wish, chunkSize), chunkSize);
    const std::uint64_t slots = std::min(RingBytes / pieceSize, streamSize / pieceSize + 1);
    return {pieceSize, static_cast<std::size_t>(std::max(slots, FewestSlots))};
}

} // namespace tessaly::crypto
