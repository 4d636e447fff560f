#pragma once

#include "lib/file/IStreamUtf8File.h"

namespace tessaly::i18n::internal {

/// For the list and for every translation resource: many times what a real one needs, and little
/// enough that the worst one, split into tiny entries, stays a moderate amount of memory.
inline constexpr io::SFileOptions TranslationFileOptions = {4u << 20};

} // namespace tessaly::i18n::internal
