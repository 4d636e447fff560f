#include "common/secret/PasswordGenerator.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace {

using namespace thisapp;
using tessaly::SecretBytes;

TEST(PasswordGenerator, ChoosesEachNumberWithEqualProbability)
{
    for (const std::uint32_t bound : {1U, 83U, 7776U, 65536U}) {
        std::vector<int> times(bound);
        // Every pair of bytes once, after which the source fails.
        for (int pair = 0; pair < 0x10000; ++pair) {
            bool first = true;
            const auto chosen = randomBelow(bound, [&](std::size_t, SecretBytes& bytes) {
                bytes = {static_cast<std::uint8_t>(pair >> 8), static_cast<std::uint8_t>(pair)};
                return std::exchange(first, false);
            });
            if (chosen)
                ++times.at(*chosen);
        }
        EXPECT_EQ(std::ranges::min(times), static_cast<int>(0x10000 / bound)) << bound;
        EXPECT_EQ(std::ranges::max(times), static_cast<int>(0x10000 / bound)) << bound;
    }
}

TEST(PasswordGenerator, MakesWhatWasAskedForAndTellsItsStrength)
{
    const auto words = generatePassword(PasswordKind::Words, 6);
    ASSERT_TRUE(words);
    EXPECT_EQ(std::ranges::count(words->text.view(), ' '), 5);
    EXPECT_NEAR(words->bits, 77.5, 0.1);
    const auto characters = generatePassword(PasswordKind::Characters, 500);
    ASSERT_TRUE(characters);
    EXPECT_EQ(characters->text.size(), 500);
    const std::set<char> seen(characters->text.view().begin(), characters->text.view().end());
    EXPECT_GT(seen.size(), 70);
    for (const char lookalike : {'I', 'O', 'l', '0', '1', ' '})
        EXPECT_FALSE(seen.contains(lookalike)) << lookalike;
    EXPECT_FALSE(generatePassword(PasswordKind::Words, 6, [](std::size_t, SecretBytes&) { return false; }));
}

} // namespace
