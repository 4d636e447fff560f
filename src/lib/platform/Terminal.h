#pragma once

#include "lib/secret/Secret.h"

namespace tessaly::platform {

/// There is a terminal to ask at: the one that the program was started from, whatever its standard streams
/// are connected to, or else standard input.
bool canAsk();
bool isErrorTerminal();

/// Columns of the terminal behind standard error; 80 when it does not tell.
unsigned errorTerminalWidth();

/// Reads one line from the terminal to ask at. The prompt is shown once what is typed no longer is; the line
/// end is not part of it. Stopped and continued, it asks again, hidden as before; in the background it stops
/// and waits to be brought to the front. False at the end of the input or when Interrupts noticed a signal.
/// The terminal is as before afterwards, and also while a signal stops the process or after one has ended it.
[[nodiscard]] bool readHiddenLine(const char* prompt, SecretBytes& line);

} // namespace tessaly::platform
