#include "crypto/job/Spool.h"

#include "lib/err/ErrorCodes.h"

#include <algorithm>

namespace tessaly::crypto {

CryptoResult Spool::open(const std::filesystem::path& folder)
{
    if (const CryptoResult made = makeThrowAwayCipher(m_cipher); !made.ok())
        return made;
    return m_file.openTemporary(folder);
}

CryptoResult Spool::append(std::uint8_t* bytes, std::size_t count)
{
    const CryptoResult enciphered = m_cipher->apply(static_cast<std::uint64_t>(m_size.load()), bytes, count);
    if (!enciphered.ok())
        return enciphered;
    for (std::size_t done = 0; done < count;) {
        std::size_t written = 0;
        if (const ResultCode result = m_file.write(bytes + done, count - done, written); !result.ok())
            return result;
        done += written;
    }
    m_size += static_cast<std::int64_t>(count);
    return {};
}

ResultCode Spool::rewind()
{
    m_position = 0;
    m_error.store({});
    return m_file.seekToStart();
}

bool Spool::read(void* buffer, std::int64_t count, std::int64_t& countRead)
{
    countRead = 0;
    if (count < 1)
        return true;
    if (isAtEnd())
        return false;
    auto* bytes = static_cast<std::uint8_t*>(buffer);
    std::size_t got = 0;
    const std::int64_t position = m_position;
    const auto asked = static_cast<std::size_t>(std::min(count, m_size - position));
    if (const ResultCode result = m_file.read(bytes, asked, got); !result.ok())
        return fail(result);
    if (got == 0)
        return fail(err::library(err::ReadFileFailed));
    if (const CryptoResult result = m_cipher->apply(static_cast<std::uint64_t>(position), bytes, got);
        !result.ok())
        return fail(result.first());
    countRead = static_cast<std::int64_t>(got);
    m_position = position + countRead;
    return true;
}

bool Spool::fail(ResultCode error)
{
    m_error.store(error);
    return false;
}

} // namespace tessaly::crypto
