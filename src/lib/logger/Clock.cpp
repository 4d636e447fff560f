#include "lib/logger/Clock.h"

#include "lib/logger/FileTime.h"

#include <atomic>
#include <chrono>

namespace tessaly::logger {

namespace {

std::int64_t systemClock()
{
    return toFileTime(toLocalTime(std::chrono::system_clock::now()));
}

std::atomic<Clock> currentClock{systemClock};

} // namespace

std::int64_t now()
{
    return currentClock.load()();
}

void setClock(Clock clock)
{
    currentClock = clock != nullptr ? clock : systemClock;
}

} // namespace tessaly::logger
