#pragma once

#include "cli/CommandTable.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace cli {

/// A command line that makes sense.
struct Arguments : Words
{
    Command command = Command::Algorithms;
    /// Nothing when it is to be found out; encryption always has one.
    std::optional<std::uint32_t> algorithmId;
};

/// The name that stands for standard input or output.
inline constexpr const char* StandardStream = "-";

/// One of the three is there.
struct ParseOutcome
{
    std::optional<Arguments> arguments;
    std::string answer;  ///< to print: help or version
    std::string problem; ///< one line
};

/// Of what stands behind the program's name.
ParseOutcome parseCommandLine(const std::vector<std::string>& words);

} // namespace cli
