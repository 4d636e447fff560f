#pragma once

#include "cli/CommandLine.h"
#include "cli/ExitCode.h"

namespace cli {

/// Encrypts or decrypts one file, from the checks to the last message.
ExitCode runCipherCommand(const Arguments& arguments);

} // namespace cli
