#include "crypto/cipher/CipherRun.h"
#include "crypto/cipher/Pipeline.h"
#include "crypto/format/FileHeader.h"

#include <algorithm>

namespace tessaly::crypto {

namespace {

/// Reads `count` bytes behind the header, which the slot holds already, and enciphers and writes them with
/// it, padded with zeros to whole blocks.
CryptoResult encryptFirstChunk(CipherRun& run, std::size_t slot, std::uint64_t count)
{
    std::uint8_t* input = run.input(slot);
    std::uint64_t got = 0;
    if (const CryptoResult result = run.read(input + HeaderSize, count, got); !result.ok())
        return result;
    const std::uint64_t padded = roundUp(HeaderSize + count, run.blockLength());
    std::fill(input + HeaderSize + count, input + padded, std::uint8_t{0});
    if (const CryptoResult result = run.engine().process(run.output(slot), input, padded); !result.ok())
        return result;
    return run.write(run.output(slot), padded);
}

} // namespace

CryptoResult encryptStream(CipherRun& run)
{
    const std::int64_t size = run.task().in->size();
    if (size < 1)
        return {};
    const auto length = static_cast<std::uint64_t>(size);
    if (const CryptoResult result = run.prepare(HeaderSize + length); !result.ok())
        return result;
    const std::size_t slot = run.plan().slots - 1;
    const std::span<std::uint8_t, HeaderSize> header(run.input(slot), HeaderSize);
    if (const CryptoResult result = makeHeader(run.engine().algorithmId(), length, run.task().salt, header);
        !result.ok())
        return result;
    if (run.isStopRequested())
        return {};

    const std::uint64_t first = std::min(run.chunkSize() - HeaderSize, length);
    if (const CryptoResult result = encryptFirstChunk(run, slot, first); !result.ok())
        return result;
    return Pipeline(run, {length - first, length, Padding::Added}).run();
}

} // namespace tessaly::crypto
