#include "crypto/catalogue/Catalogue.h"

#include <algorithm>
#include <array>

namespace tessaly::crypto {

namespace {

constexpr CatalogueEntry block(std::uint32_t id, std::string_view name, std::uint32_t key,
                               std::uint32_t blockLength, AlgAdvice advice)
{
    return {id, name, {key, blockLength, CipherMode::Cbc, blockLength, false, false}, advice};
}

constexpr CatalogueEntry stream(std::uint32_t id, std::string_view name, std::uint32_t key, std::uint32_t iv,
                                AlgAdvice advice)
{
    return {id, name, {key, iv, CipherMode::Stream, 0, name == "Panama", true}, advice};
}

constexpr std::array Entries{
#define BLOCK_CIPHER(id, name, cipher, key, blockLength, advice)                                             \
    block(id, name, key, blockLength, AlgAdvice::advice),
#define STREAM_CIPHER(id, name, cipher, key, iv, advice) stream(id, name, key, iv, AlgAdvice::advice),
#include "crypto/catalogue/algorithms.def"
};

static_assert(std::ranges::is_sorted(Entries, std::ranges::less_equal(), &CatalogueEntry::id),
              "ids rise strictly");

constexpr char lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

std::span<const CatalogueEntry> catalogue()
{
    return Entries;
}

const CatalogueEntry* findAlgorithm(std::uint32_t id)
{
    const auto* found = std::ranges::lower_bound(Entries, id, {}, &CatalogueEntry::id);
    return found != Entries.end() && found->id == id ? found : nullptr;
}

const CatalogueEntry* findAlgorithm(std::string_view name)
{
    const auto* found = std::ranges::find_if(Entries, [name](const auto& entry) {
        return std::ranges::equal(entry.name, name, {}, lower, lower);
    });
    return found != Entries.end() ? found : nullptr;
}

std::string_view displayName(std::uint32_t id)
{
    const CatalogueEntry* entry = findAlgorithm(id);
    return entry ? entry->name : std::string_view();
}

std::string_view modeName(CipherMode mode)
{
    return mode == CipherMode::Cbc ? "CBC" : "Stream";
}

} // namespace tessaly::crypto
