#include "crypto/cipher/CipherRun.h"
#include "crypto/format/FileHeader.h"

#include <algorithm>

namespace tessaly::crypto {

namespace {

/// Reads behind the `kept` bytes that the plain buffer already holds, enciphers and writes the
/// chunk of `count` bytes, padded with zeros to whole blocks. Gives what was written.
CryptoResult encryptChunk(CipherRun& run, std::uint64_t kept, std::uint64_t count, std::uint64_t& written)
{
    if (const CryptoResult result = run.read(run.plain() + kept, count - kept); !result.ok())
        return result;
    const std::uint64_t padded = roundUp(count, run.blockLength());
    std::fill(run.plain() + count, run.plain() + padded, std::uint8_t{0});
    if (const CryptoResult result = run.engine().process(run.cipher(), run.plain(), padded); !result.ok())
        return result;
    written = padded;
    return run.write(run.cipher(), padded);
}

} // namespace

CryptoResult encryptStream(CipherRun& run)
{
    const std::int64_t size = run.task().in->size();
    if (size < 1)
        return {};
    const auto length = static_cast<std::uint64_t>(size);
    if (const CryptoResult result = run.prepare(); !result.ok())
        return result;
    const std::span<std::uint8_t, HeaderSize> header(run.plain(), HeaderSize);
    if (const CryptoResult result = makeHeader(run.engine().algorithmId(), length, run.task().salt, header);
        !result.ok())
        return result;

    std::uint64_t remaining = length + HeaderSize;
    std::uint64_t kept = HeaderSize;
    while (remaining > 0 && !run.isStopRequested()) {
        std::uint64_t written = 0;
        const CryptoResult result = encryptChunk(run, kept, std::min(run.chunkSize(), remaining), written);
        if (!result.ok())
            return result;
        remaining -= std::min(remaining, written);
        if (kept == 0) // the first chunk reports nothing
            run.report(length - std::min(length, remaining), length);
        kept = 0;
    }
    return {};
}

} // namespace tessaly::crypto
