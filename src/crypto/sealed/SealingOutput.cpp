#include "crypto/sealed/SealingOutput.h"

#include <algorithm>
#include <mutex>

namespace tessaly::crypto {

SealingOutput::SealingOutput(io::OStreamBytes& sealed, const SecretBytes& salt)
    : m_sealed(sealed), m_bytes(PieceAlignment), m_begin(PieceAlignment + salt.size())
{
    m_bytes.insert(m_bytes.end(), salt.begin(), salt.end());
}

std::int64_t SealingOutput::write(const void* buffer, std::int64_t count)
{
    const auto* bytes = static_cast<const std::uint8_t*>(buffer);
    const auto wanted = static_cast<std::uint64_t>(std::max<std::int64_t>(count, 0));
    std::uint64_t taken = 0;
    while (taken < wanted && makeRoom()) {
        const std::uint64_t more = std::min(wanted - taken, PieceSize - m_inPiece);
        m_bytes.insert(m_bytes.end(), bytes + taken, bytes + taken + more);
        m_inPiece += more;
        taken += more;
    }
    return static_cast<std::int64_t>(taken);
}

bool SealingOutput::makeRoom()
{
    if (m_inPiece < PieceSize)
        return true;
    if (m_bytes.size() - m_begin + TagSize == PiecesAtOnce * SealedPieceSize)
        return putPieces(false);
    m_bytes.resize(m_bytes.size() + TagSize);
    m_inPiece = 0;
    return true;
}

bool SealingOutput::putPieces(bool endsFile)
{
    m_bytes.resize(m_bytes.size() + TagSize);
    const SealedPieces pieces{std::span(m_bytes).subspan(m_begin), m_index, endsFile};
    std::vector<PieceTag> tags;
    if (const CryptoResult tagged = m_tagger.tag(pieces, tags); !tagged.ok()) {
        std::lock_guard guard(m_lock);
        m_tagError = tagged.first();
        return false;
    }
    for (std::size_t i = 0; i < tags.size(); ++i) {
        const std::size_t end = m_begin + pieces.begin(i) + pieces.piece(i).size();
        std::ranges::copy(tags[i], m_bytes.begin() + static_cast<std::ptrdiff_t>(end));
    }
    const auto asked = static_cast<std::int64_t>(m_bytes.size() - PieceAlignment);
    const bool isWritten = m_sealed.write(m_bytes.data() + PieceAlignment, asked) == asked;
    m_bytes.resize(PieceAlignment);
    m_begin = PieceAlignment;
    m_inPiece = 0;
    m_index += tags.size();
    return isWritten;
}

ResultCode SealingOutput::lastError() const
{
    std::lock_guard guard(m_lock);
    return m_tagError.ok() ? m_sealed.lastError() : m_tagError;
}

} // namespace tessaly::crypto
