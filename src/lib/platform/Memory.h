#pragma once

#include "lib/err/ResultCode.h"

#include <cstddef>

namespace tessaly::platform {

/// Overwrites memory with zeros in a way that the compiler never drops.
void wipe(void* data, std::size_t size) noexcept;

/// The system's error for memory that cannot be had.
ResultCode outOfMemory();

/// Whole pages for at least `size` bytes: left out of core dumps, and kept out of the swap space where the
/// limit of the process allows it. Null when there is no memory.
[[nodiscard]] void* mapSecretPages(std::size_t size) noexcept;

} // namespace tessaly::platform
