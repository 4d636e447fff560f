#include "lib/secret/Hex.h"

#include <gtest/gtest.h>

namespace {

using tessaly::decodeHex;
using tessaly::SecretBytes;

TEST(Hex, DecodesPairsBetweenAnyWhiteSpace)
{
    EXPECT_EQ(decodeHex("00ff Aa\t\r\n\v\f1 2"), (SecretBytes{0x00, 0xFF, 0xAA, 0x12}));
    EXPECT_EQ(decodeHex(" \n"), SecretBytes());
    for (const char* text : {"0", "123", "0g", "0x00", "00,11", "\xC2\xA0", "-1"})
        EXPECT_EQ(decodeHex(text), std::nullopt) << text;
    for (const char* text : {"", "0F", "01234567", "01234567 89", "01234567 89ABCDEF 00"}) {
        const SecretBytes bytes = decodeHex(text).value();
        EXPECT_EQ(tessaly::encodeHex({bytes.data(), bytes.size()}).view(), text) << "groups of four bytes";
    }
}

TEST(SecretText, EndsWithAZeroThatIsNotCounted)
{
    const tessaly::SecretText text(std::string_view("a\0b", 3));
    EXPECT_EQ(text.size(), 3U);
    EXPECT_EQ(text.c_str()[3], '\0');
    EXPECT_STREQ(tessaly::SecretText().c_str(), "");
}

} // namespace
