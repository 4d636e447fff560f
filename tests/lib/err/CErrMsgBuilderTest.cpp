#include "lib/err/CErrMsgBuilder.h"

#include <gtest/gtest.h>

namespace {

using tessaly::ResultCode;

/// Has texts for category 7 only.
class Texts final : public tessaly::err::IErrMsg<char>
{
public:
    bool lookup(std::uint32_t category, std::uint32_t code, std::string& text) const override
    {
        text = " text " + std::to_string(code) + " \r\n";
        return category == 7;
    }
};

TEST(CErrMsgBuilder, TakesTheFirstTextAndTheLastCode)
{
    const ResultCode none;
    const std::tuple<const char*, ResultCode, ResultCode, ResultCode, const char*> rows[] = {
        {"It failed.", none, none, none, ""},
        {" It failed.\n", {5, 1}, none, none, "It failed. (error: 5/1)"},
        {"It failed.", {7, 1}, none, none, "text 1 (error: 7/1)"},
        {"It failed.", {7, 1}, {7, 2}, {7, 3}, "text 1 (error: 7/3)"},
        {"It failed.", {5, 1}, {7, 2}, {1, 3}, "text 2 (error: 1/3)"},
        {"It failed.", none, {5, 2}, {7, 3}, "text 3 (error: 7/3)"},
        {"It failed.", {7, 1}, {5, 2}, none, "text 1 (error: 5/2)"},
        {" ", {5, 0}, none, none, "(error: 5/0)"},
    };
    const Texts texts;
    const tessaly::err::internal::CErrMsgBuilder<char> builder(texts);
    for (const auto& [sentence, first, second, third, line] : rows)
        EXPECT_EQ(builder.build(sentence, first, second, third), line);
}

} // namespace
