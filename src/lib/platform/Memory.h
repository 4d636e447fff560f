#pragma once

#include <cstddef>

namespace tessaly::platform {

/// Overwrites memory with zeros in a way that the compiler never drops.
void wipe(void* data, std::size_t size) noexcept;

} // namespace tessaly::platform
