#include "common/secret/KeyFile.h"
#include "common/secret/PasswordGenerator.h"
#include "common/secret/PasswordRules.h"
#include "support/Walk.h"

#include <algorithm>
#include <set>

namespace {

using namespace thisapp;
using tessaly::SecretBytes;

/// A key file becomes what is written of what was read from it, a password why it cannot be taken.
TEST(SecretTexts, BecomeWhatTheirTableSays)
{
    test::walk("secret_texts.txt",
               {{"key file",
                 [](const std::string& text) {
                     const auto read = parseKeyFile(text);
                     return read ? std::string(keyFileText(read->algorithm, read->key, read->iv).view())
                                 : "refused";
                 }},
                {"password", [](const std::string& text) {
                     const char* problem = passwordProblem(text);
                     return std::string(problem ? problem : "");
                 }}});
}

TEST(PasswordGenerator, ChoosesEachNumberWithEqualProbability)
{
    for (const std::uint32_t bound : {1U, 83U, 7776U, 65536U}) {
        std::vector<std::uint32_t> times(bound);
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
        EXPECT_EQ(times, std::vector(bound, 0x10000 / bound));
    }
}

TEST(PasswordGenerator, MakesWhatWasAskedForAndTellsItsStrength)
{
    const auto words = generatePassword(PasswordKind::Words, 6);
    ASSERT_TRUE(words);
    EXPECT_EQ(std::ranges::count(words->text.view(), ' '), 5);
    EXPECT_NE(words->text.view(), generatePassword(PasswordKind::Words, 6)->text.view());
    EXPECT_NEAR(words->bits, 77.5, 0.1);
    const auto characters = generatePassword(PasswordKind::Characters, 500);
    ASSERT_TRUE(characters);
    EXPECT_EQ(characters->text.size(), 500);
    EXPECT_NEAR(characters->bits, 500 * 6.392, 1);
    EXPECT_FALSE(generatePassword(PasswordKind::Words, 6, [](std::size_t, SecretBytes&) { return false; }));

    std::string every;
    for (std::uint8_t number = 0; number < 200; ++number)
        every += generatePassword(PasswordKind::Characters, 1, [number](std::size_t, SecretBytes& bytes) {
                     bytes = {0, number};
                     return true;
                 })->text.view();
    std::set<char> wanted;
    for (char c = '!'; c <= '~'; ++c)
        if (std::string_view("IOl01\"'`\\|").find(c) == std::string_view::npos)
            wanted.insert(c);
    EXPECT_EQ(std::set(every.begin(), every.end()), wanted) << "no lookalikes, no quotes";
}

} // namespace
