#pragma once

#include <cstdint>

namespace tessaly::platform {

std::uint32_t processId();

/// The calling thread's number, as the system's tools show it.
std::uint32_t threadId();

} // namespace tessaly::platform
