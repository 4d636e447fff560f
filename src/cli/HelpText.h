#pragma once

#include "cli/CommandTable.h"

#include <optional>
#include <string>

namespace cli {

/// What can be said with a command, or without one.
std::string helpText(std::optional<Command> command);

} // namespace cli
