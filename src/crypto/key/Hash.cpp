#include "crypto/key/Hash.h"

#include <algorithm>
#include <array>

namespace tessaly::crypto {

namespace {

struct HashRow
{
    std::uint32_t id;
    std::uint32_t digestLength;
    std::string_view name; ///< empty for a hash that is not built in
};

/// The numbering is shared with other programs of the library; only the named ones are used here.
constexpr std::array Hashes{
    HashRow{1, 20, {}},          HashRow{10, 28, {}},         HashRow{11, 32, "SHA-256"},
    HashRow{12, 48, {}},         HashRow{13, 64, {}},         HashRow{20, 28, "SHA3-224"},
    HashRow{21, 32, "SHA3-256"}, HashRow{22, 48, "SHA3-384"}, HashRow{23, 64, "SHA3-512"},
    HashRow{30, 24, {}},         HashRow{40, 64, {}},         HashRow{50, 16, {}},
    HashRow{51, 20, {}},         HashRow{52, 32, {}},         HashRow{53, 40, {}},
    HashRow{300, 16, {}},        HashRow{301, 16, {}},        HashRow{303, 16, {}},
    HashRow{304, 32, {}},        HashRow{400, 4, {}},         HashRow{401, 4, {}},
};

HashRow findHash(std::uint32_t id)
{
    const auto* found = std::ranges::find(Hashes, id, &HashRow::id);
    return found != Hashes.end() ? *found : HashRow{};
}

} // namespace

std::uint32_t digestLength(std::uint32_t hashId)
{
    return findHash(hashId).digestLength;
}

std::string_view hashName(std::uint32_t hashId)
{
    return findHash(hashId).name;
}

} // namespace tessaly::crypto
