#pragma once

#include <chrono>
#include <cstdint>
#include <ratio>
#include <string>

/// Windows file time: 100 ns units since 1601-01-01. Log records carry local time in it, so that
/// no time zone has to be known to print them.
namespace tessaly::logger {

using FileTimeUnits = std::chrono::duration<std::int64_t, std::ratio<1, 10000000>>;
using LocalTime = std::chrono::local_time<FileTimeUnits>;

inline constexpr LocalTime fileTimeEpoch =
    std::chrono::local_days(std::chrono::January / 1 / std::chrono::year(1601));

constexpr std::int64_t toFileTime(LocalTime time)
{
    return (time - fileTimeEpoch).count();
}

constexpr LocalTime fromFileTime(std::int64_t fileTime)
{
    return fileTimeEpoch + FileTimeUnits(fileTime);
}

/// What the clocks on the wall show at that moment.
LocalTime toLocalTime(std::chrono::system_clock::time_point moment);

/// "2024.03.05 14:07:09:042"; a fraction of a millisecond is cut off.
std::string formatFileTime(std::int64_t fileTime);

} // namespace tessaly::logger
