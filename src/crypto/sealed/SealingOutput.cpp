#include "crypto/sealed/SealingOutput.h"

#include <algorithm>
#include <mutex>

namespace tessaly::crypto {

SealingOutput::SealingOutput(io::OStreamBytes& sealed, const SecretBytes& salt)
    : m_sealed(sealed), m_begin(salt.size())
{
    m_bytes.reserve(salt.size() + PieceSize + TagSize);
    m_bytes.assign(salt.begin(), salt.end());
}

std::int64_t SealingOutput::write(const void* buffer, std::int64_t count)
{
    const auto* bytes = static_cast<const std::uint8_t*>(buffer);
    const auto wanted = static_cast<std::uint64_t>(std::max<std::int64_t>(count, 0));
    std::uint64_t taken = 0;
    while (taken < wanted) {
        if (m_bytes.size() - m_begin == PieceSize && !putPiece(false))
            break;
        const std::uint64_t more = std::min(wanted - taken, m_begin + PieceSize - m_bytes.size());
        m_bytes.insert(m_bytes.end(), bytes + taken, bytes + taken + more);
        taken += more;
    }
    return static_cast<std::int64_t>(taken);
}

bool SealingOutput::putPiece(bool isLast)
{
    PieceTag tag;
    const CryptoResult tagged = m_tagger.tagNext(std::span(m_bytes).subspan(m_begin), isLast, tag);
    if (!tagged.ok()) {
        std::lock_guard guard(m_lock);
        m_tagError = tagged.first();
        return false;
    }
    m_bytes.insert(m_bytes.end(), tag.begin(), tag.end());
    const auto asked = static_cast<std::int64_t>(m_bytes.size());
    const bool isWritten = m_sealed.write(m_bytes.data(), asked) == asked;
    m_bytes.clear();
    m_begin = 0;
    return isWritten;
}

ResultCode SealingOutput::lastError() const
{
    std::lock_guard guard(m_lock);
    return m_tagError.ok() ? m_sealed.lastError() : m_tagError;
}

} // namespace tessaly::crypto
