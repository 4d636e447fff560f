#pragma once

#include "crypto/sealed/PieceTagger.h"
#include "io/IStreamBytes.h"
#include "lib/sync/Locker.h"

#include <vector>

namespace tessaly::crypto {

/// The inner file of a sealed one. A piece is handed on only when its tag is right; after any failure there
/// is no more. One thread at a time, whichever; the queries, with a lock of their own, may come from any.
class OpeningInput final : public io::IStreamBytes
{
public:
    /// `sealed` has been read up to the end of the salt, holds that many bytes of inner file, and must
    /// outlive it.
    OpeningInput(io::IStreamBytes& sealed, std::uint64_t innerSize);
    /// Verifies the first piece: (5, 4003) when its tag is wrong; (5, 60) and the stream's error when it
    /// cannot be read.
    CryptoResult open(const SecretBytes& tagKey);

    bool isAtStart() const override;
    bool isAtEnd() const override;
    /// (5, 4010) is the error of a wrong tag, and of a file that has become shorter.
    [[nodiscard]] bool read(void* buffer, std::int64_t count, std::int64_t& countRead) override;
    std::int64_t size() const override { return static_cast<std::int64_t>(m_size); }
    ResultCode lastError() const override;

private:
    /// Reads and verifies so many pieces more, or what is left.
    ResultCode nextPieces(std::uint64_t most);
    ResultCode readPieces();
    ResultCode verify(const SealedPieces& pieces);
    bool fail(ResultCode error);

    io::IStreamBytes& m_sealed;
    const std::uint64_t m_size;
    PieceTagger m_tagger;
    std::vector<std::uint8_t> m_bytes; ///< the pieces at hand and their tags, from PieceAlignment on
    std::uint64_t m_begin = 0;         ///< of what is in it, in the inner file
    std::uint64_t m_end = 0;           ///< likewise; 0 before the first piece
    mutable sync::Locker m_lock;
    std::uint64_t m_position = 0;
    ResultCode m_error;
};

} // namespace tessaly::crypto
