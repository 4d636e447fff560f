#include "lib/logger/LogText.h"
#include "lib/logger/FileTime.h"
#include "lib/logger/LogLine.h"
#include "support/Environment.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

namespace {

using namespace std::chrono;
using namespace std::string_literals;
using namespace tessaly::logger;

TEST(FileTime, FormatsDates)
{
    const std::pair<std::int64_t, const char*> rows[] = {
        {0, "1601.01.01 00:00:00:000"},
        {94405824000000000 - 10000, "1900.02.28 23:59:59:999"}, // 1900 had no 29 February
        {133537247999999999, "2024.02.29 23:59:59:999"},        // cut off, not rounded
        {133541212290420000, "2024.03.05 14:07:09:042"},
        {2650467743999990000, "9999.12.31 23:59:59:999"},
    };
    for (const auto& [time, text] : rows) {
        EXPECT_EQ(formatFileTime(time), text);
        EXPECT_EQ(toFileTime(fromFileTime(time)), time);
    }
}

TEST(FileTime, FollowsLocalTimeThroughDaylightSaving)
{
    const test::Environment zone("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
    const std::pair<system_clock::time_point, const char*> rows[] = {
        {sys_days(2024y / 3 / 31) + 1h - 1ms, "2024.03.31 01:59:59:999"},
        {sys_days(2024y / 3 / 31) + 1h, "2024.03.31 03:00:00:000"},
        {sys_days(2024y / 10 / 27) + 1h - 1ms, "2024.10.27 02:59:59:999"},
        {sys_days(2024y / 10 / 27) + 1h, "2024.10.27 02:00:00:000"},
        {sys_days(1969y / 1 / 1) - 1ms, "1969.01.01 00:59:59:999"},
    };
    for (const auto& [utc, local] : rows)
        EXPECT_EQ(formatFileTime(toFileTime(toLocalTime(utc))), local);
}

TEST(LogLine, Format)
{
    constexpr std::int64_t Time = 133541212290420000;
    const std::pair<internal::LogLine, const char*> rows[] = {
        {{Time, 4312, 988, 4, "mainwindow", "text", 0},
         "[2024.03.05 14:07:09:042] [INFRM] [04312] [00988] [mainwindow] text"},
        {{Time, 1234567, 4294967295, 6, "", "", 9},
         "[2024.03.05 14:07:09:042] [TRACE] [1234567] [4294967295] [] "},
        {{-1, 1, 2, 3, "s", "before 1601", 0}, "[WARNG] [00001] [00002] [s] before 1601"},
        {{Time, 1, 2, 7, "s", "no level", 0},
         "[2024.03.05 14:07:09:042] [2024.03.05 14:07:09:042] [00001] [00002] [s] no level"},
        {{0, 1, 2, 1, "a\nb", "c\r\n[d]", 0}, "[FATAL] [00001] [00002] [a\\nb] c\\x0D\\n[d]"},
    };
    for (const auto& [line, expected] : rows) {
        std::string text;
        line.format(text);
        EXPECT_EQ(text, expected);
    }
}

TEST(LogText, StaysOneLineOfValidUtf8)
{
    const std::pair<std::string, const char*> rows[] = {
        {"plain \\ ~ \u00DF\u65E5\U0001F512", "plain \\ ~ \u00DF\u65E5\U0001F512"},
        {"\0\t\x1B[31m\x7F"s, "\\x00\\x09\\x1B[31m\\x7F"},
        {"\u0085|\u009B|\u00A0", "\\xC2\\x85|\\xC2\\x9B|\u00A0"},
        {"\u2028\u2029\u202A", "\\xE2\\x80\\xA8\\xE2\\x80\\xA9\\xE2\\x80\\xAA"},
        {"\u061C\u200D\u200E\u200F", "\\xD8\\x9C\u200D\\xE2\\x80\\x8E\\xE2\\x80\\x8F"},
        {"\u202E\u202F|\u2065\u2066", "\\xE2\\x80\\xAE\u202F|\u2065\\xE2\\x81\\xA6"},
        {"\u2069\u206A", "\\xE2\\x81\\xA9\u206A"},
        {"\xFF\xC3(\xE2\x82", "\\xFF\\xC3(\\xE2\\x82"},
        {"\xC0\x8A\xE0\x80\x8A", "\\xC0\\x8A\\xE0\\x80\\x8A"}, // line feeds in disguise
        {"\xED\xA0\x80", "\\xED\\xA0\\x80"},                   // a surrogate
        {"\xF4\x90\x80\x80\xF5", "\\xF4\\x90\\x80\\x80\\xF5"}, // beyond the last character
    };
    for (const auto& [text, expected] : rows) {
        std::string line;
        appendOneLine(line, text);
        EXPECT_EQ(line, expected);
    }
}

} // namespace
