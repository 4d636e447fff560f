#include "crypto/sealed/PieceTagger.h"

#include "crypto/key/Hmac.h"

#include <algorithm>
#include <atomic>
#include <system_error>
#include <thread>

namespace tessaly::crypto {

namespace {

constexpr std::size_t DigestSize = 32;
constexpr std::size_t IndexSize = 8;
/// Four make tags faster than any disk takes the pieces.
constexpr std::size_t MostThreads = 4;
/// A thread's start costs as much as a tenth of a piece's tag.
constexpr std::size_t PiecesPerThread = 2;

CryptoResult tagOne(IHashEngine& hmac, const SealedPieces& pieces, std::size_t i, PieceTag& tag)
{
    std::array<std::uint8_t, IndexSize + 1> prefix{};
    for (std::size_t byte = 0; byte < IndexSize; ++byte)
        prefix[byte] = static_cast<std::uint8_t>((pieces.firstIndex + i) >> (8 * byte));
    prefix.back() = pieces.endsFile && i + 1 == pieces.count() ? 1 : 0;

    const std::span<const std::uint8_t> piece = pieces.piece(i);
    std::array<std::uint8_t, DigestSize> digest{};
    CryptoResult result = hmac.update(prefix.data(), prefix.size());
    if (result.ok())
        result = hmac.update(piece.data(), piece.size());
    if (result.ok())
        result = hmac.finish(digest.data());
    std::copy_n(digest.begin(), tag.size(), tag.begin());
    return result;
}

} // namespace

std::span<const std::uint8_t> SealedPieces::piece(std::size_t i) const
{
    return bytes.subspan(begin(i), std::min(SealedPieceSize, bytes.size() - begin(i)) - TagSize);
}

CryptoResult PieceTagger::setKey(const SecretBytes& tagKey)
{
    m_hmacs.resize(std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, MostThreads));
    CryptoResult result;
    for (auto& hmac : m_hmacs)
        if (result.ok())
            result = makeHmac(HmacHash::Sha256, tagKey, hmac);
    return result;
}

CryptoResult PieceTagger::tag(const SealedPieces& pieces, std::vector<PieceTag>& tags)
{
    const std::size_t count = pieces.count();
    const std::size_t threads = std::clamp<std::size_t>(count / PiecesPerThread, 1, m_hmacs.size());
    tags.resize(count);
    std::vector<CryptoResult> results(threads);
    std::atomic<std::size_t> next = 0;
    const auto work = [&](std::size_t thread) {
        for (std::size_t i = next++; i < count && results[thread].ok(); i = next++)
            results[thread] = tagOne(*m_hmacs[thread], pieces, i, tags[i]);
    };
    {
        std::vector<std::jthread> helpers;
        helpers.reserve(threads);
        try {
            for (std::size_t thread = 1; thread < threads; ++thread)
                helpers.emplace_back(work, thread);
        } catch (const std::system_error&) {
            // Those that there are do it all.
        }
        work(0);
    }
    const auto failed = std::ranges::find_if(results, [](const CryptoResult& r) { return !r.ok(); });
    return failed == results.end() ? CryptoResult() : *failed;
}

} // namespace tessaly::crypto
