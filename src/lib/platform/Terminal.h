#pragma once

#include "lib/secret/Secret.h"

namespace tessaly::platform {

bool isInputTerminal();
bool isErrorTerminal();

/// Columns of the terminal behind standard error; 80 when it does not tell.
unsigned errorTerminalWidth();

/// Reads one line from the terminal without showing it; the line end is not part of it. False at
/// the end of the input or when a signal interrupts. The terminal is as before afterwards.
[[nodiscard]] bool readHiddenLine(SecretBytes& line);

} // namespace tessaly::platform
