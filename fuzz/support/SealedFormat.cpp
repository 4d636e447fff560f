#include "fuzz/support/SealedFormat.h"

#include "crypto/key/Hmac.h"
#include "fuzz/support/Require.h"

#include <algorithm>
#include <array>
#include <span>
#include <vector>

namespace fuzz {

namespace {

using Slots = std::vector<Bytes>;

Bytes tagOf(const tessaly::SecretBytes& tagKey, std::uint64_t index, bool isLast,
            std::span<const std::uint8_t> piece)
{
    using namespace tessaly::crypto;
    std::array<std::uint8_t, 9> prefix{};
    for (std::size_t i = 0; i < 8; ++i)
        prefix[i] = static_cast<std::uint8_t>(index >> (8 * i));
    prefix[8] = isLast ? 1 : 0;
    std::unique_ptr<IHashEngine> hmac;
    Bytes digest(32);
    require(makeHmac(HmacHash::Sha256, tagKey, hmac).ok() &&
                hmac->update(prefix.data(), prefix.size()).ok() &&
                hmac->update(piece.data(), piece.size()).ok() && hmac->finish(digest.data()).ok(),
            "the tag can be made");
    digest.resize(TagBytes);
    return digest;
}

Slots cut(std::span<const std::uint8_t> bytes, std::size_t size)
{
    Slots slots;
    for (std::size_t at = 0; at < bytes.size(); at += size) {
        const auto slot = bytes.subspan(at, std::min(size, bytes.size() - at));
        slots.emplace_back(slot.begin(), slot.end());
    }
    return slots;
}

} // namespace

Bytes sealInnerFile(const Bytes& salt, const tessaly::SecretBytes& tagKey, const Bytes& inner)
{
    Slots pieces = cut(inner, PieceBytes);
    if (pieces.empty())
        pieces.emplace_back();
    Bytes file = salt;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        const Bytes tag = tagOf(tagKey, i, i + 1 == pieces.size(), pieces[i]);
        file.insert(file.end(), pieces[i].begin(), pieces[i].end());
        file.insert(file.end(), tag.begin(), tag.end());
    }
    return file;
}

bool canBeSealed(std::size_t size)
{
    if (size == SaltBytes + TagBytes)
        return true;
    if (size <= SaltBytes)
        return false;
    const std::size_t last = (size - SaltBytes - 1) % SlotBytes + 1;
    const bool hasOnePiece = size <= SaltBytes + SlotBytes;
    return last > TagBytes && (!hasOnePiece || last > TagBytes + 56);
}

std::optional<Opening> openSealedFile(const tessaly::SecretBytes& tagKey, const Bytes& file)
{
    if (!canBeSealed(file.size()))
        return std::nullopt;
    const Slots slots = cut(std::span(file).subspan(SaltBytes), SlotBytes);
    Opening opening;
    for (std::size_t i = 0; i < slots.size(); ++i) {
        const std::span<const std::uint8_t> slot = slots[i];
        const auto piece = slot.first(slot.size() - TagBytes);
        if (!std::ranges::equal(slot.last(TagBytes), tagOf(tagKey, i, i + 1 == slots.size(), piece))) {
            opening.wrongPiece = i;
            break;
        }
        opening.inner.insert(opening.inner.end(), piece.begin(), piece.end());
    }
    return opening;
}

void shuffle(Choices& choices, Bytes& file, const Bytes& other)
{
    if (file.size() <= SaltBytes || other.size() <= SaltBytes)
        return;
    Slots slots = cut(std::span(file).subspan(SaltBytes), SlotBytes);
    const Slots others = cut(std::span(other).subspan(SaltBytes), SlotBytes);
    const auto any = [&] { return choices.upTo(slots.size() - 1); };
    switch (choices.upTo(3)) {
    case 0:
        std::swap(slots[any()], slots[any()]);
        break;
    case 1:
        slots.erase(slots.begin() + static_cast<std::ptrdiff_t>(any()));
        break;
    case 2:
        slots.push_back(slots[any()]);
        break;
    default:
        slots[any()] = others[choices.upTo(others.size() - 1)];
        break;
    }
    file.resize(SaltBytes);
    for (const Bytes& slot : slots)
        file.insert(file.end(), slot.begin(), slot.end());
}

} // namespace fuzz
