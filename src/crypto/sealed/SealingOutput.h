#pragma once

#include "crypto/sealed/PieceTagger.h"
#include "io/OStreamBytes.h"
#include "lib/sync/Locker.h"

#include <vector>

namespace tessaly::crypto {

/// Takes an inner file and writes the sealed one: some pieces with their tags as soon as more comes, the
/// last ones at the end. One thread at a time, whichever; lastError, with a lock of its own, may be asked
/// from any.
class SealingOutput final : public io::OStreamBytes
{
public:
    /// `sealed` must outlive it.
    SealingOutput(io::OStreamBytes& sealed, const SecretBytes& salt);
    CryptoResult open(const SecretBytes& tagKey) { return m_tagger.setKey(tagKey); }

    [[nodiscard]] std::int64_t write(const void* buffer, std::int64_t count) override;
    ResultCode lastError() const override;
    /// Writes what is left; without it the file is not whole. False when lastError tells why.
    [[nodiscard]] bool finish() { return putPieces(true); }

private:
    /// Closes the piece at hand, if it is full; writes all when there are enough.
    bool makeRoom();
    bool putPieces(bool endsFile);

    io::OStreamBytes& m_sealed;
    PieceTagger m_tagger;
    std::vector<std::uint8_t> m_bytes; ///< what is yet to be written, the salt first, from PieceAlignment on
    std::uint64_t m_begin;             ///< of the pieces in it
    std::uint64_t m_inPiece = 0;       ///< bytes in the last of them
    std::uint64_t m_index = 0;         ///< of the first of them
    mutable sync::Locker m_lock;
    ResultCode m_tagError;
};

} // namespace tessaly::crypto
