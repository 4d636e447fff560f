#include "crypto/catalogue/AlgInfo.h"

#include "crypto/catalogue/Catalogue.h"

namespace tessaly::crypto {

AlgRecord AlgInfo::record(std::uint32_t algorithmId) const
{
    const CatalogueEntry* entry = findAlgorithm(algorithmId);
    return entry ? entry->record : AlgRecord{};
}

std::uint32_t AlgInfo::keyDerivationHash(std::uint32_t algorithmId) const
{
    const AlgRecord found = record(algorithmId);
    return crypto::keyDerivationHash(found.keyLength, found.ivLength);
}

} // namespace tessaly::crypto
