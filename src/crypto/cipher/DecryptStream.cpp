#include "crypto/cipher/CipherRun.h"
#include "crypto/cipher/Pipeline.h"
#include "crypto/format/FileHeader.h"

#include <algorithm>

namespace tessaly::crypto {

namespace {

/// Deciphers the first `count` bytes, whole blocks, and checks the header against the size of the input.
/// A block in part never reaches the cipher: CBC would read beyond it.
CryptoResult openHeader(CipherRun& run, std::size_t slot, std::uint64_t size, std::uint64_t count,
                        std::uint64_t& length)
{
    if (count < CheckedHeaderSize) // of blocks above 16 bytes; what cannot be verified is refused
        return err::CheckValueDiffers;
    std::uint64_t got = 0;
    if (const CryptoResult result = run.read(run.input(slot), count, got); !result.ok())
        return result;
    if (const CryptoResult result = run.engine().process(run.output(slot), run.input(slot), count);
        !result.ok())
        return result;
    const std::span<const std::uint8_t, CheckedHeaderSize> header(run.output(slot), CheckedHeaderSize);
    if (const CryptoResult result = verifyHeader(run.engine().algorithmId(), header, length); !result.ok())
        return result;
    const std::uint64_t usable = roundDown(size, run.blockLength());
    if (usable < HeaderSize || length > usable - HeaderSize)
        return err::InputTruncated;
    return {};
}

} // namespace

CryptoResult decryptStream(CipherRun& run)
{
    const auto size = static_cast<std::uint64_t>(std::max<std::int64_t>(run.task().in->size(), 0));
    if (size == 0)
        return {};
    if (size < HeaderSize)
        return err::InputTooShort;
    if (const CryptoResult result = run.prepare(size); !result.ok())
        return result;
    if (run.isStopRequested())
        return {};

    const std::size_t slot = run.plan().slots - 1;
    const std::uint64_t count = roundDown(std::min(run.chunkSize(), size), run.blockLength());
    std::uint64_t length = 0;
    if (const CryptoResult result = openHeader(run, slot, size, count, length); !result.ok())
        return result;
    const std::uint64_t first = std::min(length, count - HeaderSize);
    if (const CryptoResult result = run.write(run.output(slot) + HeaderSize, first); !result.ok())
        return result;
    return Pipeline(run, {length - first, length, Padding::Dropped}).run();
}

} // namespace tessaly::crypto
