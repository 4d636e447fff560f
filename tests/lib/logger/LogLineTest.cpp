#include "lib/logger/LogLine.h"
#include "lib/logger/LogText.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace std::string_literals;
using namespace tessaly::logger::internal;

constexpr std::int64_t Time = 133541212290420000;

TEST(LogLine, Format)
{
    const struct
    {
        LogLine line;
        const char* text;
    } cases[] = {
        {{Time, 4312, 988, 4, "mainwindow", "text", 0},
         "[2024.03.05 14:07:09:042] [INFRM] [04312] [00988] [mainwindow] text"},
        {{Time, 1234567, 4294967295, 6, "", "", 9},
         "[2024.03.05 14:07:09:042] [TRACE] [1234567] [4294967295] [] "},
        {{-1, 1, 2, 3, "s", "before 1601", 0}, "[WARNG] [00001] [00002] [s] before 1601"},
        {{Time, 1, 2, 7, "s", "no level", 0},
         "[2024.03.05 14:07:09:042] [2024.03.05 14:07:09:042] [00001] [00002] [s] no level"},
        {{0, 1, 2, 1, "a\nb", "c\r\n[d]", 0}, "[FATAL] [00001] [00002] [a\\nb] c\\x0D\\n[d]"},
    };
    for (const auto& c : cases) {
        std::string text;
        c.line.format(text);
        EXPECT_EQ(text, c.text);
    }
}

TEST(LogText, StaysOneLineOfValidUtf8)
{
    const struct
    {
        std::string text, line;
    } cases[] = {
        {"plain \\ ~ \u00DF\u65E5\U0001F512", "plain \\ ~ \u00DF\u65E5\U0001F512"},
        {"\0\t\x1B[31m\x7F"s, "\\x00\\x09\\x1B[31m\\x7F"},
        {"\u0085|\u009B|\u00A0", "\\xC2\\x85|\\xC2\\x9B|\u00A0"},
        {"\u2028\u2029\u202A", "\\xE2\\x80\\xA8\\xE2\\x80\\xA9\\xE2\\x80\\xAA"},
        {"\u061C\u200D\u200E\u200F", "\\xD8\\x9C\u200D\\xE2\\x80\\x8E\\xE2\\x80\\x8F"},
        {"\u202E\u202F|\u2065\u2066\u2069\u206A",
         "\\xE2\\x80\\xAE\u202F|\u2065\\xE2\\x81\\xA6\\xE2\\x81\\xA9\u206A"},
        {"\xFF\xC3(\xE2\x82", "\\xFF\\xC3(\\xE2\\x82"},
        {"\xC0\x8A\xE0\x80\x8A", "\\xC0\\x8A\\xE0\\x80\\x8A"}, // line feeds in disguise
        {"\xED\xA0\x80", "\\xED\\xA0\\x80"},                   // a surrogate
        {"\xF4\x90\x80\x80\xF5", "\\xF4\\x90\\x80\\x80\\xF5"}, // beyond the last character
    };
    for (const auto& c : cases) {
        std::string line;
        tessaly::logger::appendOneLine(line, c.text);
        EXPECT_EQ(line, c.line);
    }
}

} // namespace
