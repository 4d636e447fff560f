#pragma once

#include "cli/CommandTable.h"

#include <string>
#include <vector>

namespace cli {

/// Sorts what stands behind a command's name, or behind the program's (null), by the table of options.
/// Options and files may be mixed; -- ends the options, - alone is a file. Gives what is wrong, or nothing.
/// Stops where help is asked for.
std::string readWords(const std::vector<std::string>& arguments, const CommandRow* command, Words& words);

} // namespace cli
