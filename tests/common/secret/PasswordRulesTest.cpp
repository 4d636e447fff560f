#include "common/secret/PasswordRules.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

using namespace std::string_view_literals;

TEST(PasswordRules, RefusesWhatNoFieldLetsOneType)
{
    // U+00A0 and up, and bytes that are no UTF-8, can be typed somewhere.
    const struct
    {
        std::string_view password;
        std::string_view word; ///< in the sentence; empty when the password can be taken
    } rows[] = {{"", ""},
                {" ~!x", ""},
                {"\u00A0\u00E9\u2027\u202F\U0001F511", ""},
                {"\x85\xC2", ""},
                {"a\nb", "line break"},
                {"a\r", "line break"},
                {"\u0085", "line break"},
                {"x\u2028", "line break"},
                {"\u2029x", "line break"},
                {"a\tb", "tab"},
                {"a\0b"sv, "control"},
                {"\x1F", "control"},
                {"\x7F", "control"},
                {"\u0080", "control"},
                {"\u009F", "control"}};
    for (const auto& row : rows) {
        const char* problem = thisapp::passwordProblem(row.password);
        EXPECT_EQ(problem == nullptr, row.word.empty()) << row.word;
        EXPECT_NE(std::string(problem ? problem : "").find(row.word), std::string::npos) << row.word;
    }
}

} // namespace
