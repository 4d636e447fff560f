#pragma once

#include "lib/secret/Secret.h"

namespace tessaly::platform {

bool isInputTerminal();
bool isErrorTerminal();

/// Columns of the terminal behind standard error; 80 when it does not tell.
unsigned errorTerminalWidth();

/// Shows the prompt and reads one line from the terminal without showing it; the line end is not part
/// of it. Stopped and continued, it asks again, hidden as before; in the background it
/// stops and waits to be brought to the front. False at the end of the input or
/// when Interrupts noticed a signal. The terminal is as before afterwards, and also while a signal
/// stops the process or after one has ended it.
[[nodiscard]] bool readHiddenLine(const char* prompt, SecretBytes& line);

} // namespace tessaly::platform
