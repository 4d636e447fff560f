#pragma once

#include "lib/err/ResultCode.h"

#include <cstddef>

namespace tessaly::platform {

/// Fills the memory with bytes of the system's generator, fit for keys. Needs no file, and so fails only on
/// a system that has no generator. After a failure some bytes may be as they were.
ResultCode fillRandomly(void* bytes, std::size_t count);

} // namespace tessaly::platform
