#include "lib/logger/FileTime.h"
#include "support/Environment.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

namespace {

using namespace tessaly::logger;
using namespace std::chrono;

TEST(FileTime, FormatsDates)
{
    const struct
    {
        std::int64_t fileTime;
        const char* text;
    } cases[] = {
        {0, "1601.01.01 00:00:00:000"},
        {94405824000000000 - 10000, "1900.02.28 23:59:59:999"}, // 1900 had no 29 February
        {133537247999999999, "2024.02.29 23:59:59:999"},        // cut off, not rounded
        {133541212290420000, "2024.03.05 14:07:09:042"},
        {2650467743999990000, "9999.12.31 23:59:59:999"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(formatFileTime(c.fileTime), c.text);
        EXPECT_EQ(toFileTime(fromFileTime(c.fileTime)), c.fileTime);
    }
}

TEST(FileTime, FollowsLocalTimeThroughDaylightSaving)
{
    const test::Environment zone("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
    const struct
    {
        system_clock::time_point utc;
        const char* local;
    } cases[] = {
        {sys_days(2024y / 3 / 31) + 1h - 1ms, "2024.03.31 01:59:59:999"},
        {sys_days(2024y / 3 / 31) + 1h, "2024.03.31 03:00:00:000"},
        {sys_days(2024y / 10 / 27) + 1h - 1ms, "2024.10.27 02:59:59:999"},
        {sys_days(2024y / 10 / 27) + 1h, "2024.10.27 02:00:00:000"},
        {sys_days(1969y / 1 / 1) - 1ms, "1969.01.01 00:59:59:999"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(formatFileTime(toFileTime(toLocalTime(c.utc))), c.local);
}

} // namespace
