#include "common/secret/PasswordRules.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace std::string_view_literals;

TEST(PasswordRules, RefusesWhatNoFieldLetsOneType)
{
    // By a word of what is told. U+00A0 and up, and bytes that are no UTF-8, can be typed somewhere.
    const std::pair<std::string, std::vector<std::string_view>> rows[] = {
        {"", {"", " ~!x", "\u00A0\u00E9\u2027\u202F\U0001F511", "\x85\xC2"}},
        {"line break", {"a\nb", "a\r", "\u0085", "x\u2028", "\u2029x"}},
        {"tab", {"a\tb"}},
        {"control", {"a\0b"sv, "\x1F", "\x7F", "\u0080", "\u009F"}},
    };
    for (const auto& [word, passwords] : rows)
        for (const std::string_view password : passwords) {
            const char* problem = thisapp::passwordProblem(password);
            EXPECT_EQ(problem == nullptr, word.empty()) << password;
            EXPECT_NE(std::string(problem ? problem : "").find(word), std::string::npos) << password;
        }
}

} // namespace
