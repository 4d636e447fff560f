#include "lib/platform/LocalTime.h"

#include <ctime>

namespace tessaly::platform {

std::chrono::seconds utcOffset(std::chrono::system_clock::time_point moment)
{
    // to_time_t truncates towards zero, which before 1970 would be the wrong second.
    const std::time_t seconds = std::chrono::floor<std::chrono::seconds>(moment).time_since_epoch().count();
    std::tm local{};
    if (::localtime_r(&seconds, &local) == nullptr)
        return std::chrono::seconds(0);
    return std::chrono::seconds(local.tm_gmtoff);
}

} // namespace tessaly::platform
