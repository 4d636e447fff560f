#pragma once

#include "lib/err/ResultCode.h"

#include <cstddef>

namespace tessaly::platform {

/// Overwrites memory with zeros in a way that the compiler never drops.
void wipe(void* data, std::size_t size) noexcept;

/// The system's error for memory that cannot be had.
ResultCode outOfMemory();

} // namespace tessaly::platform
