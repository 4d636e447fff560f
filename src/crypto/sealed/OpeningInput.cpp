#include "crypto/sealed/OpeningInput.h"

#include "crypto/key/Hmac.h"

#include <algorithm>
#include <mutex>

namespace tessaly::crypto {

namespace {

constexpr ResultCode Broken = err::library(err::SealBroken);

} // namespace

OpeningInput::OpeningInput(io::IStreamBytes& sealed, std::uint64_t innerSize)
    : m_sealed(sealed), m_size(innerSize)
{
    m_bytes.reserve(PieceSize + TagSize);
}

CryptoResult OpeningInput::open(const SecretBytes& tagKey)
{
    if (const CryptoResult keyed = m_tagger.setKey(tagKey); !keyed.ok())
        return keyed;
    const ResultCode result = nextPiece();
    if (result.ok())
        return {};
    fail(result);
    // With another secret all tags are wrong.
    return result == Broken ? CryptoResult(err::CheckValueDiffers)
                            : CryptoResult(err::ReadStreamFailed, result);
}

bool OpeningInput::read(void* buffer, std::int64_t count, std::int64_t& countRead)
{
    countRead = 0;
    if (count < 1)
        return true;
    if (!lastError().ok() || isAtEnd())
        return false;
    if (m_position == m_pieceEnd)
        if (const ResultCode result = nextPiece(); !result.ok())
            return fail(result);
    const std::uint64_t left = m_pieceEnd - m_position;
    const std::uint64_t taken = std::min(static_cast<std::uint64_t>(count), left);
    std::copy_n(m_bytes.data() + (m_bytes.size() - TagSize - left), taken,
                static_cast<std::uint8_t*>(buffer));
    countRead = static_cast<std::int64_t>(taken);
    std::lock_guard guard(m_lock);
    m_position += taken;
    return true;
}

ResultCode OpeningInput::nextPiece()
{
    const std::uint64_t count = std::min(PieceSize, m_size - m_pieceEnd);
    m_bytes.resize(count + TagSize);
    if (const ResultCode result = readPiece(); !result.ok())
        return result;
    PieceTag tag;
    const bool isLast = m_pieceEnd + count == m_size;
    const CryptoResult tagged = m_tagger.tagNext({m_bytes.data(), count}, isLast, tag);
    if (!tagged.ok())
        return tagged.first();
    if (!isEqualInConstantTime(tag.data(), m_bytes.data() + count, tag.size()))
        return Broken;
    m_pieceEnd += count;
    return {};
}

ResultCode OpeningInput::readPiece()
{
    for (std::size_t got = 0; got < m_bytes.size();) {
        const auto asked = static_cast<std::int64_t>(m_bytes.size() - got);
        std::int64_t more = 0;
        const bool isRead = m_sealed.read(m_bytes.data() + got, asked, more);
        if (!isRead && !m_sealed.lastError().ok())
            return m_sealed.lastError();
        if (!isRead || more < 1 || more > asked)
            return Broken;
        got += static_cast<std::size_t>(more);
    }
    return {};
}

bool OpeningInput::fail(ResultCode error)
{
    std::lock_guard guard(m_lock);
    m_error = error;
    return false;
}

bool OpeningInput::isAtStart() const
{
    std::lock_guard guard(m_lock);
    return m_position == 0;
}

bool OpeningInput::isAtEnd() const
{
    std::lock_guard guard(m_lock);
    return m_position == m_size;
}

ResultCode OpeningInput::lastError() const
{
    std::lock_guard guard(m_lock);
    return m_error;
}

} // namespace tessaly::crypto
