#include "crypto/cipher/CipherRun.h"
#include "crypto/format/FileHeader.h"

#include <algorithm>

namespace tessaly::crypto {

namespace {

/// Reads `count` bytes, a whole number of blocks, and deciphers them into the plain buffer.
/// A block in part never reaches the cipher: CBC would read beyond it.
CryptoResult decryptChunk(CipherRun& run, std::uint64_t count)
{
    if (const CryptoResult result = run.read(run.cipher(), count); !result.ok())
        return result;
    return run.engine().process(run.plain(), run.cipher(), count);
}

/// Deciphers the first `count` bytes and checks the header against the size of the input.
CryptoResult openHeader(CipherRun& run, std::uint64_t size, std::uint64_t count, std::uint64_t& length)
{
    if (count < CheckedHeaderSize) // of blocks above 16 bytes; what cannot be verified is refused
        return err::CheckValueDiffers;
    if (const CryptoResult result = decryptChunk(run, count); !result.ok())
        return result;
    const std::span<const std::uint8_t, CheckedHeaderSize> header(run.plain(), CheckedHeaderSize);
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
    if (const CryptoResult result = run.prepare(); !result.ok())
        return result;
    if (run.isStopRequested())
        return {};

    std::uint64_t length = 0;
    std::uint64_t count = roundDown(std::min(run.chunkSize(), size), run.blockLength());
    if (const CryptoResult result = openHeader(run, size, count, length); !result.ok())
        return result;

    std::uint64_t wanted = std::min(length, count - HeaderSize);
    if (const CryptoResult result = run.write(run.plain() + HeaderSize, wanted); !result.ok())
        return result;
    std::uint64_t remaining = length - wanted;
    while (remaining > 0 && !run.isStopRequested()) {
        wanted = std::min(run.chunkSize(), remaining);
        if (const CryptoResult result = decryptChunk(run, roundUp(wanted, run.blockLength())); !result.ok())
            return result;
        if (const CryptoResult result = run.write(run.plain(), wanted); !result.ok())
            return result;
        remaining -= wanted;
        run.report(length - remaining, length);
    }
    return {};
}

} // namespace tessaly::crypto
