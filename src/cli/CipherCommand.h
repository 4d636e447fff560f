#pragma once

#include "cli/CommandLine.h"
#include "cli/ExitCode.h"

namespace cli {

/// Encrypts, decrypts or verifies files one after the other, from the checks to the last message. The worst
/// of their codes; a failure does not keep the others from their turn, an interrupt does.
ExitCode runCipherCommand(const Arguments& arguments);

} // namespace cli
