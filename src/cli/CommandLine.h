#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace cli {

enum class Command { Encrypt, Decrypt, Algorithms };

/// A command line that makes sense. Paths are as the user gave them.
struct Arguments
{
    Command command = Command::Algorithms;
    std::uint32_t algorithmId = 0;
    std::optional<std::string> passwordFile; ///< "-" is standard input
    std::optional<std::string> keyFile;
    std::optional<std::string> ivFile;
    std::optional<std::string> output;
    std::string input;
    bool salt = false;
    bool seal = false;
    bool force = false;
    bool json = false;
};

/// One of the three is there.
struct ParseOutcome
{
    std::optional<Arguments> arguments;
    std::string answer;  ///< to print: help or version
    std::string problem; ///< one line
};

ParseOutcome parseCommandLine(int argc, char** argv);

} // namespace cli
