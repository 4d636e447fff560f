#pragma once

#include "lib/secret/Secret.h"

#include <chrono>

namespace thisapp {

/// How long a secret stays on the clipboard.
inline constexpr std::chrono::seconds SecretClipboardTime{60};
/// The same, for texts that tell it.
inline constexpr int SecretClipboardSeconds = SecretClipboardTime.count();

/// Puts a secret on the clipboard and asks clipboard managers to keep it out of their history. It is
/// removed after the time, and at the end of the program, unless something else was copied since.
void copySecret(tessaly::SecretText text, std::chrono::milliseconds time = SecretClipboardTime);

} // namespace thisapp
