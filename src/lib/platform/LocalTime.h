#pragma once

#include <chrono>

namespace tessaly::platform {

/// How far local time is ahead of UTC at that moment, daylight saving included; 0 when unknown.
std::chrono::seconds utcOffset(std::chrono::system_clock::time_point moment);

} // namespace tessaly::platform
