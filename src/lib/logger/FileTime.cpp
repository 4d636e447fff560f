#include "lib/logger/FileTime.h"

#include "lib/platform/LocalTime.h"

#include <array>
#include <cstdio>

namespace tessaly::logger {

namespace chr = std::chrono;

LocalTime toLocalTime(chr::system_clock::time_point moment)
{
    const auto sinceUnixEpoch = chr::floor<FileTimeUnits>(moment.time_since_epoch());
    return LocalTime(sinceUnixEpoch + platform::utcOffset(moment));
}

std::string formatFileTime(std::int64_t fileTime)
{
    const LocalTime time = fromFileTime(fileTime);
    const auto midnight = chr::floor<chr::days>(time);
    const chr::year_month_day date(midnight);
    const chr::hh_mm_ss clock(chr::floor<chr::milliseconds>(time - midnight));

    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%04i.%02i.%02i %02i:%02i:%02i:%03i", int(date.year()),
                  int(unsigned(date.month())), int(unsigned(date.day())), int(clock.hours().count()),
                  int(clock.minutes().count()), int(clock.seconds().count()),
                  int(clock.subseconds().count()));
    return text.data();
}

} // namespace tessaly::logger
