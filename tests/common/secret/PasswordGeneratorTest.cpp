#include "common/secret/PasswordGenerator.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>

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
    EXPECT_NE(words->text.view(), generatePassword(PasswordKind::Words, 6)->text.view());
    EXPECT_NEAR(words->bits, 77.5, 0.1);
    std::string every; // character that can be chosen
    for (std::uint8_t number = 0; every.empty() || number < every.size() + 1U; ++number) {
        const auto one =
            generatePassword(PasswordKind::Characters, 1, [number](std::size_t, SecretBytes& bytes) {
                bytes = {0, number};
                return true;
            });
        if (every.starts_with(one->text.view()))
            break; // from the start again
        every += one->text.view();
    }
    std::string wanted;
    for (char c = '!'; c <= '~'; ++c)
        if (std::string_view("IOl01\"'`\\|").find(c) == std::string_view::npos)
            wanted += c;
    std::ranges::sort(every);
    EXPECT_EQ(every, wanted) << "no lookalikes, no quotes";
    const auto characters = generatePassword(PasswordKind::Characters, 500);
    ASSERT_TRUE(characters);
    EXPECT_EQ(characters->text.size(), 500);
    EXPECT_NEAR(characters->bits, 500 * 6.392, 1);
    EXPECT_FALSE(generatePassword(PasswordKind::Words, 6, [](std::size_t, SecretBytes&) { return false; }));
}

} // namespace
