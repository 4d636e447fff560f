#include "crypto/Engine.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstring>

namespace {

using namespace test;

using Words = std::vector<std::uint32_t>;

std::uint32_t rotate(std::uint32_t word, std::uint32_t by)
{
    return std::rotl(word, static_cast<int>(by % 32));
}

template <class To, class From>
std::vector<To> reinterpreted(const std::vector<From>& from)
{
    static_assert(std::endian::native == std::endian::little);
    std::vector<To> to(from.size() * sizeof(From) / sizeof(To));
    std::memcpy(to.data(), from.data(), from.size() * sizeof(From));
    return to;
}

/// The key schedule that RC5 (Rivest, "The RC5 Encryption Algorithm", 1994) and RC6 share.
Words schedule(const Bytes& key, std::size_t count)
{
    Words mixed = reinterpreted<std::uint32_t>(key);
    Words table(count, 0xB7E15163);
    for (std::size_t i = 1; i < count; ++i)
        table[i] = table[i - 1] + 0x9E3779B9;
    std::uint32_t a = 0;
    std::uint32_t b = 0;
    for (std::size_t n = 0; n < 3 * std::max(count, mixed.size()); ++n) {
        std::uint32_t& entry = table[n % count];
        std::uint32_t& word = mixed[n % mixed.size()];
        a = entry = rotate(entry + a + b, 3);
        b = word = rotate(word + a + b, a + b);
    }
    return table;
}

/// RC6-32/20 as its authors published it (Rivest, Robshaw, Sidney, Yin, 1998).
Bytes rc6(const Bytes& key, const Bytes& block)
{
    constexpr std::size_t Rounds = 20;
    const Words s = schedule(key, 2 * Rounds + 4);
    Words w = reinterpreted<std::uint32_t>(block);
    w[1] += s[0];
    w[3] += s[1];
    for (std::size_t i = 1; i <= Rounds; ++i) {
        const std::uint32_t t = rotate(w[1] * (2 * w[1] + 1), 5);
        const std::uint32_t u = rotate(w[3] * (2 * w[3] + 1), 5);
        w = {w[1], rotate(w[2] ^ u, t) + s[2 * i + 1], w[3], rotate(w[0] ^ t, u) + s[2 * i]};
    }
    w[0] += s[2 * Rounds + 2];
    w[2] += s[2 * Rounds + 3];
    return reinterpreted<std::uint8_t>(w);
}

/// RC5-32/16.
Bytes rc5(const Bytes& key, const Bytes& block)
{
    constexpr std::size_t Rounds = 16;
    const Words s = schedule(key, 2 * Rounds + 2);
    Words w = reinterpreted<std::uint32_t>(block);
    w[0] += s[0];
    w[1] += s[1];
    for (std::size_t i = 1; i <= Rounds; ++i) {
        w[0] = rotate(w[0] ^ w[1], w[1]) + s[2 * i];
        w[1] = rotate(w[1] ^ w[0], w[0]) + s[2 * i + 1];
    }
    return reinterpreted<std::uint8_t>(w);
}

/// No vector is published for the keys beyond 32 bytes, nor for RC5 with 16 rounds.
TEST(RC6LongKey, AgreesWithThePublishedAlgorithm)
{
    for (const CatalogueEntry& algorithm : tessaly::crypto::catalogue()) {
        const bool isRc6 = algorithm.name.starts_with("RC6-");
        if (!isRc6 && !algorithm.name.starts_with("RC5-"))
            continue;
        for (std::uint32_t seed = 0; seed < 50; ++seed) {
            const Bytes key = noise(algorithm.record.keyLength, seed);
            const Bytes block = noise(algorithm.record.blockLength, seed + 1000);
            ASSERT_EQ(enciphered(algorithm, key, block, block.size()),
                      isRc6 ? rc6(key, block) : rc5(key, block))
                << algorithm.name;
        }
    }
}

} // namespace
