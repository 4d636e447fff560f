#include "common/secret/PasswordRules.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

using namespace std::string_view_literals;

struct Row
{
    std::string_view password;
    std::string_view word; ///< in the sentence; empty when the password can be taken
};

class PasswordRules : public testing::TestWithParam<Row>
{
};

TEST_P(PasswordRules, RefusesWhatNoFieldLetsOneType)
{
    const char* problem = thisapp::passwordProblem(GetParam().password);
    if (GetParam().word.empty())
        EXPECT_EQ(problem, nullptr) << problem;
    else
        EXPECT_NE(std::string(problem ? problem : "").find(GetParam().word), std::string::npos);
}

// U+00A0 and up, and bytes that are no UTF-8, can be typed somewhere.
INSTANTIATE_TEST_SUITE_P(
    All, PasswordRules,
    testing::Values(Row{"", ""}, Row{" ~!x", ""}, Row{"\u00A0\u00E9\u2027\u202F\U0001F511", ""},
                    Row{"\x85\xC2", ""}, Row{"a\nb", "line break"}, Row{"a\r", "line break"},
                    Row{"\u0085", "line break"}, Row{"x\u2028", "line break"}, Row{"\u2029x", "line break"},
                    Row{"a\tb", "tab"}, Row{"a\0b"sv, "control"}, Row{"\x1F", "control"},
                    Row{"\x7F", "control"}, Row{"\u0080", "control"}, Row{"\u009F", "control"}));

} // namespace
