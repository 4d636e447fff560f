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
}

CryptoResult OpeningInput::open(const SecretBytes& tagKey)
{
    if (const CryptoResult keyed = m_tagger.setKey(tagKey); !keyed.ok())
        return keyed;
    const ResultCode result = nextPieces(1);
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
    if (m_position == m_end)
        if (const ResultCode result = nextPieces(PiecesAtOnce); !result.ok())
            return fail(result);
    const std::uint64_t at = m_position - m_begin;
    const std::uint64_t left = std::min(PieceSize - at % PieceSize, m_end - m_position);
    const std::uint64_t taken = std::min(static_cast<std::uint64_t>(count), left);
    std::copy_n(m_bytes.data() + PieceAlignment + at + at / PieceSize * TagSize, taken,
                static_cast<std::uint8_t*>(buffer));
    countRead = static_cast<std::int64_t>(taken);
    std::lock_guard guard(m_lock);
    m_position += taken;
    return true;
}

ResultCode OpeningInput::nextPieces(std::uint64_t most)
{
    const std::uint64_t count = std::min(most * PieceSize, m_size - m_end);
    const std::uint64_t pieces = std::max<std::uint64_t>((count + PieceSize - 1) / PieceSize, 1);
    m_bytes.resize(PieceAlignment + count + pieces * TagSize);
    if (const ResultCode result = readPieces(); !result.ok())
        return result;
    if (const ResultCode result =
            verify({std::span(m_bytes).subspan(PieceAlignment), m_end / PieceSize, m_end + count == m_size});
        !result.ok())
        return result;
    m_begin = m_end;
    m_end += count;
    return {};
}

ResultCode OpeningInput::verify(const SealedPieces& pieces)
{
    std::vector<PieceTag> tags;
    if (const CryptoResult tagged = m_tagger.tag(pieces, tags); !tagged.ok())
        return tagged.first();
    for (std::size_t i = 0; i < tags.size(); ++i) {
        const std::span<const std::uint8_t> piece = pieces.piece(i);
        if (!isEqualInConstantTime(tags[i].data(), piece.data() + piece.size(), TagSize))
            return Broken;
    }
    return {};
}

ResultCode OpeningInput::readPieces()
{
    for (std::size_t got = PieceAlignment; got < m_bytes.size();) {
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
