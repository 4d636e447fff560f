#include "lib/platform/LocalTime.h"

#include <cstdint>
#include <windows.h>

namespace tessaly::platform {

namespace {

/// The system counts in steps of 100 ns from 1601 on.
constexpr std::int64_t StepsPerSecond = 10000000;
constexpr std::int64_t SecondsTo1970 = 11644473600;

std::int64_t stepsOf(const FILETIME& time)
{
    return static_cast<std::int64_t>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
}

} // namespace

std::chrono::seconds utcOffset(std::chrono::system_clock::time_point moment)
{
    const std::int64_t since1970 =
        std::chrono::floor<std::chrono::seconds>(moment).time_since_epoch().count();
    const std::int64_t steps = (since1970 + SecondsTo1970) * StepsPerSecond;
    const FILETIME time{static_cast<DWORD>(steps), static_cast<DWORD>(steps >> 32)};
    SYSTEMTIME utc = {};
    SYSTEMTIME local = {};
    FILETIME localTime = {};
    TIME_ZONE_INFORMATION zone = {}; // its rules change from year to year
    if (steps < 0 || !::FileTimeToSystemTime(&time, &utc) ||
        !::GetTimeZoneInformationForYear(utc.wYear, nullptr, &zone) ||
        !::SystemTimeToTzSpecificLocalTime(&zone, &utc, &local) ||
        !::SystemTimeToFileTime(&local, &localTime))
        return std::chrono::seconds(0);
    return std::chrono::seconds((stepsOf(localTime) - steps) / StepsPerSecond);
}

} // namespace tessaly::platform
