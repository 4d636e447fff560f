#include "app/errors/CErrMsg.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <map>

namespace {

TEST(CErrMsg, KnowsItsCodesAndNoOthers)
{
    const std::map<std::uint32_t, std::string> texts = {
        {8, "Object busy"},
        {17, "Data stream not defined"},
        {40, "File name not defined"},
        {41, "File not found"},
        {42, "Open file failed"},
        {43, "Get file size failed"},
        {45, "Reading file failed"},
        {60, "Reading data stream failed"},
        {200, "Input file name not defined"},
        {201, "Input file not found"},
        {202, "Output file name not defined"},
        {203, "Output file not found"},
        {206, "Output file name matches the name of the input file"},
        {1004, "Operation was stopped"},
        {4000, "Failed to calculate data hash"},
        {4001, "Failed to calculate data hash"},
        {4002, "Failed to calculate data hash"},
        {4003, "Corrupted data"},
        {4004, "Corrupted data"},
        {4005, "Corrupted data"},
        {4006, "Cryptographic engine is not initialized"},
    };
    const thisapp::CErrMsg messages;
    for (std::uint32_t code = 0; code < 5000; ++code) {
        const auto expected = texts.find(code);
        std::string text;
        EXPECT_EQ(messages.lookup(5, code, text), expected != texts.end()) << code;
        EXPECT_EQ(text, expected != texts.end() ? expected->second : "");
        EXPECT_FALSE(messages.lookup(53, code, text));
    }
}

TEST(CErrMsg, AsksTheSystemForItsMessages)
{
    const thisapp::CErrMsg messages;
    std::string text;
    ASSERT_TRUE(messages.lookup(1, ENOENT, text));
    EXPECT_EQ(text, "No such file or directory");
    EXPECT_FALSE(messages.lookup(1, 99999, text));
    EXPECT_FALSE(messages.lookup(1, 0xffffffff, text));
    EXPECT_FALSE(messages.lookup(0, 0, text));
}

} // namespace
