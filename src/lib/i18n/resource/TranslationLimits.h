#pragma once

#include "lib/file/IStreamUtf8File.h"

namespace tessaly::i18n::internal {

/// Many times what a real file needs, and little enough that the worst one, made of nothing but tiny
/// entries, stays a moderate amount of memory and time.
inline constexpr io::SFileOptions ListOptions = {256u << 10};
inline constexpr io::SFileOptions ResourceLimits = {4u << 20};

} // namespace tessaly::i18n::internal
