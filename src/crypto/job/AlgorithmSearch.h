#pragma once

#include "crypto/CryptoResult.h"
#include "crypto/catalogue/Catalogue.h"
#include "crypto/job/FileJob.h"
#include "crypto/sealed/SealedKeys.h"
#include "io/IRewindableBytes.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace tessaly::crypto {

/// Tells with which algorithm a file was encrypted, by its beginning and the secret. The algorithm's id is
/// part of what is compared: the check value of 256 bits of a plain file, and the tag of 128 bits of a
/// sealed file's first piece. So no more than one fits, and a foreign file or a wrong secret passes for
/// some algorithm's with a chance below 2^-121. What lies behind the beginning is not looked at.
///
/// By password all algorithms are tried, by key and IV those that take keys and IVs of that length. The
/// plain headers take less than a millisecond together, the tags a few. May throw when the memory is
/// short. One thread.
class AlgorithmSearch
{
public:
    /// The request, which must outlive it, gives the secret. One algorithm can be left out.
    explicit AlgorithmSearch(const FileJobRequest& request, std::optional<std::uint32_t> tried = {});

    /// Reads the beginning of the file; (5, 60) and the stream's error when that fails.
    CryptoResult read(io::IRewindableBytes& in);
    /// By the headers of the plain format.
    std::optional<std::uint32_t> findPlain() const;
    /// By the first tag, under the root of that file.
    std::optional<std::uint32_t> findSealed(const SecretBytes& root) const;

    /// A sealed file can have that size.
    bool mayBeSealed() const;
    /// Of the file, if it is a sealed one.
    SecretBytes salt() const;
    /// One that takes such a secret; null when there is none.
    const CatalogueEntry* anyCandidate() const;

private:
    bool isCandidate(const CatalogueEntry& algorithm) const;
    bool fitsPlain(std::uint32_t algorithmId) const;
    bool fitsSealed(std::uint32_t algorithmId, const SecretBytes& root) const;

    const FileJobRequest& m_request;
    const std::optional<std::uint32_t> m_tried;
    std::vector<std::uint8_t> m_head;
    std::uint64_t m_size = 0;
};

/// How a search of its own ended.
struct FoundAlgorithm
{
    /// (5, 4003) when no algorithm fits, (5, 4004) when the file is too short for any.
    CryptoResult result;
    bool cancelled = false;
    /// Nothing after a failure, and for an empty file, which every algorithm decrypts to an empty one.
    std::optional<std::uint32_t> algorithmId;
    /// Of a sealed file. In the request of a decryption it saves the making of the key.
    SealedRoot root;
};

/// Looks for the algorithm of the request's input, without a word about its output: the plain format
/// first, and a sealed file's key is made only when that fails. The request keeps its secrets. Blocks;
/// heeds a stop before and after the making of the key. No exception leaves it.
FoundAlgorithm findAlgorithm(const FileJobRequest& request, IFileJobObserver& observer) noexcept;

} // namespace tessaly::crypto
