#pragma once

#include "cli/CommandLine.h"

#include <string>

namespace cli {

/// The output beside the input, named as the program's default settings name it.
std::string defaultOutput(const std::string& input, Command command);

} // namespace cli
