#include "crypto/job/AlgorithmSearch.h"

#include "crypto/Guard.h"
#include "crypto/catalogue/AlgInfo.h"
#include "crypto/cipher/CipherRun.h"
#include "crypto/cryptopp/CCipherFactory.h"
#include "crypto/job/RootOfRequest.h"
#include "crypto/key/Hmac.h"
#include "crypto/key/KeyMaterial.h"
#include "crypto/sealed/PieceTagger.h"
#include "crypto/sealed/SealedFormat.h"
#include "io/IStreamFile.h"
#include "io/NullOutput.h"

#include <algorithm>
#include <memory>
#include <new>
#include <span>
#include <utility>

namespace tessaly::crypto {

namespace {

/// Whole blocks of every algorithm, and the header in them.
constexpr std::size_t PlainHeadSize = 128;
constexpr std::size_t SealedHeadSize = SealSaltSize + PieceSize + TagSize;

/// The first bytes of a file as a file of their own.
class HeadInput final : public io::IStreamBytes
{
public:
    explicit HeadInput(std::span<const std::uint8_t> bytes) : m_bytes(bytes), m_left(bytes) {}

    bool isAtStart() const override { return m_left.size() == m_bytes.size(); }
    bool isAtEnd() const override { return m_left.empty(); }
    std::int64_t size() const override { return std::ssize(m_bytes); }
    ResultCode lastError() const override { return {}; }

    [[nodiscard]] bool read(void* buffer, std::int64_t count, std::int64_t& countRead) override
    {
        countRead = std::clamp<std::int64_t>(count, 0, std::ssize(m_left));
        const auto taken = static_cast<std::size_t>(countRead);
        std::copy_n(m_left.begin(), taken, static_cast<std::uint8_t*>(buffer));
        m_left = m_left.subspan(taken);
        return taken > 0 || count < 1;
    }

private:
    std::span<const std::uint8_t> m_bytes;
    std::span<const std::uint8_t> m_left;
};

std::unique_ptr<ISymmetricDecryptor> decryptorOf(std::uint32_t algorithmId)
{
    std::unique_ptr<ISymmetricDecryptor> decryptor;
    const CryptoResult made =
        cryptopp::CDecryptorFactory().create(CryptoPPLibraryId, algorithmId, &decryptor);
    return made.ok() ? std::move(decryptor) : nullptr;
}

/// Where nothing but memory can be short: an algorithm that could not be tried is none that doesn't fit.
void requireMemory(bool had)
{
    if (!had)
        throw std::bad_alloc();
}

template <class Fits>
std::optional<std::uint32_t> firstOf(Fits fits)
{
    const auto found = std::ranges::find_if(catalogue(), fits);
    return found == catalogue().end() ? std::nullopt : std::optional(found->id);
}

/// A search of its own over a file that is open.
FoundAlgorithm searchIn(io::IRewindableBytes& in, const FileJobRequest& request, IFileJobObserver& observer)
{
    FoundAlgorithm found;
    AlgorithmSearch search(request);
    found.result = search.read(in);
    if (!found.result.ok() || in.size() == 0)
        return found;
    found.result =
        in.size() < static_cast<std::int64_t>(HeaderSize) ? err::InputTooShort : err::CheckValueDiffers;
    found.algorithmId = search.findPlain();
    const CatalogueEntry* any = search.anyCandidate();
    if (!found.algorithmId && any && search.mayBeSealed()) {
        SealedRoot root;
        const auto engine = decryptorOf(any->id);
        requireMemory(engine != nullptr);
        const CryptoResult made =
            makeRoot(request, request.password, *engine, search.salt(), observer, root, found.cancelled);
        if (found.cancelled || !made.ok()) {
            found.result = made;
            return found;
        }
        found.algorithmId = search.findSealed(root.bytes);
        if (found.algorithmId)
            found.root = std::move(root);
    }
    if (found.algorithmId)
        found.result = {};
    return found;
}

} // namespace

AlgorithmSearch::AlgorithmSearch(const FileJobRequest& request, std::optional<std::uint32_t> tried)
    : m_request(request), m_tried(tried)
{
}

CryptoResult AlgorithmSearch::read(io::IRewindableBytes& in)
{
    m_head.clear();
    m_size = static_cast<std::uint64_t>(std::max<std::int64_t>(in.size(), 0));
    if (const ResultCode rewound = in.rewind(); !rewound.ok())
        return {err::ReadStreamFailed, rewound};
    std::vector<std::uint8_t> head(std::min<std::uint64_t>(m_size, SealedHeadSize));
    for (std::size_t got = 0; got < head.size();) {
        std::int64_t more = 0;
        if (!in.read(head.data() + got, static_cast<std::int64_t>(head.size() - got), more) || more < 1)
            return {err::ReadStreamFailed, in.lastError()};
        got += static_cast<std::size_t>(more);
    }
    m_head = std::move(head);
    return {};
}

bool AlgorithmSearch::mayBeSealed() const
{
    return !m_head.empty() && innerSize(m_size).has_value();
}

SecretBytes AlgorithmSearch::salt() const
{
    return {m_head.begin(), m_head.begin() + std::min<std::ptrdiff_t>(std::ssize(m_head), SealSaltSize)};
}

std::optional<std::uint32_t> AlgorithmSearch::findPlain() const
{
    if (m_head.empty())
        return {};
    return firstOf([this](const CatalogueEntry& entry) { return isCandidate(entry) && fitsPlain(entry.id); });
}

std::optional<std::uint32_t> AlgorithmSearch::findSealed(const SecretBytes& root) const
{
    if (!mayBeSealed())
        return {};
    return firstOf(
        [&](const CatalogueEntry& entry) { return isCandidate(entry) && fitsSealed(entry.id, root); });
}

const CatalogueEntry* AlgorithmSearch::anyCandidate() const
{
    const auto found =
        std::ranges::find_if(catalogue(), [this](const CatalogueEntry& entry) { return isCandidate(entry); });
    return found == catalogue().end() ? nullptr : &*found;
}

bool AlgorithmSearch::isCandidate(const CatalogueEntry& algorithm) const
{
    return algorithm.id != m_tried &&
           (m_request.passwordMode || (algorithm.record.keyLength == m_request.key.size() &&
                                       algorithm.record.ivLength == m_request.iv.size()));
}

bool AlgorithmSearch::fitsPlain(std::uint32_t algorithmId) const
{
    const auto decryptor = decryptorOf(algorithmId);
    requireMemory(decryptor != nullptr);
    HeadInput in({m_head.data(), std::min(m_head.size(), PlainHeadSize)});
    io::NullOutput out;
    SecretBytes key = m_request.key;
    SecretBytes iv = m_request.iv;
    if (m_request.passwordMode) {
        const std::uint32_t hash = keyDerivationHash(decryptor->keyLength(), decryptor->ivLength());
        requireMemory(deriveKey(key, decryptor->keyLength(), hash, m_request.password.c_str()).ok());
        iv = SecretBytes(decryptor->ivLength());
    }
    const CryptoResult result =
        decryptor->run(&in, &out, key, iv, HeaderSize, DefaultProgressInterval, nullptr, nullptr);
    // Of most files the head alone is cut short, and that is told once the check value fits.
    const bool fits = result.ok() || result == CryptoResult(err::InputTruncated);
    requireMemory(fits || result == CryptoResult(err::CheckValueDiffers) ||
                  result == CryptoResult(err::InputTooShort));
    return fits;
}

bool AlgorithmSearch::fitsSealed(std::uint32_t algorithmId, const SecretBytes& root) const
{
    const auto decryptor = decryptorOf(algorithmId);
    SealedKeys keys;
    PieceTagger tagger;
    requireMemory(decryptor && expandRoot(root, *decryptor, keys).ok() && tagger.setKey(keys.tagKey).ok());
    const std::uint64_t within = innerSize(m_size).value_or(0);
    const SealedPieces first{
        .bytes = std::span(m_head).subspan(SealSaltSize), .firstIndex = 0, .endsFile = within <= PieceSize};
    const std::span<const std::uint8_t> piece = first.piece(0);
    std::vector<PieceTag> tags;
    requireMemory(tagger.tag(first, tags).ok());
    return isEqualInConstantTime(tags[0].data(), piece.data() + piece.size(), TagSize);
}

FoundAlgorithm findAlgorithm(const FileJobRequest& request, IFileJobObserver& observer) noexcept
{
    FoundAlgorithm found;
    const CryptoResult failure = guarded(err::library(err::ProcessingFailed), [&]() -> CryptoResult {
        if (request.source) {
            found = searchIn(*request.source, request, observer);
            return {};
        }
        platform::File file;
        io::IStreamFile<wchar_t> in;
        ResultCode opened = file.openForReading(request.input);
        if (opened.ok())
            opened = in.open(std::move(file));
        if (opened.ok())
            found = searchIn(in, request, observer);
        return opened;
    });
    if (!failure.ok())
        found = {.result = failure, .cancelled = false, .algorithmId = {}, .root = {}};
    return found;
}

} // namespace tessaly::crypto
