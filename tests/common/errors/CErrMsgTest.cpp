#include "common/errors/CErrMsg.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <set>
#include <string>

namespace {

TEST(CErrMsg, KnowsItsCodesAndNoOthers)
{
    const std::set<std::uint32_t> known = {8,   17,  40,   41,   42,   43,   45,   60,   200,  201,  202,
                                           203, 206, 1004, 4000, 4001, 4002, 4003, 4004, 4005, 4006, 4010};
    const thisapp::CErrMsg messages;
    std::string text;
    for (std::uint32_t code = 0; code < 5000; ++code) {
        EXPECT_EQ(messages.lookup(5, code, text), known.contains(code)) << code;
        EXPECT_FALSE(messages.lookup(53, code, text));
    }
    EXPECT_TRUE(messages.lookup(5, 206, text));
    EXPECT_EQ(text, "Output file name matches the name of the input file");
    ASSERT_TRUE(messages.lookup(1, ENOENT, text));
    EXPECT_EQ(text, "No such file or directory");
    EXPECT_FALSE(messages.lookup(1, 99999, text));
    EXPECT_FALSE(messages.lookup(0, 0, text));
}

} // namespace
