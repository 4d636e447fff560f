#pragma once

#include <cstdint>

namespace tessaly::logger {

using Clock = std::int64_t (*)();

/// The time that a record gets when it is sent: local time as file time.
std::int64_t now();

/// Replaces the clock behind now, for tests; null brings the system's back. Any thread.
void setClock(Clock clock);

} // namespace tessaly::logger
