#pragma once

#include "cli/CommandLine.h"

#include <string>
#include <vector>

namespace cli {

/// One file of a command, which can be worked on as far as one sees.
struct Item
{
    std::string input;  ///< StandardStream for standard input
    std::string output; ///< the same for standard output; empty for a command that writes nothing
};

struct Plan
{
    std::vector<Item> items;
    std::vector<std::string> problems; ///< one line for each file that is left out
};

/// Names the outputs and looks at all paths before the first file is touched.
Plan makePlan(const Arguments& arguments);

} // namespace cli
