#pragma once

#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

/// What can be said on the command line, in one place: parsing and help follow from it, as can whatever else
/// has to know it.
namespace cli {

enum class Command { Encrypt, Decrypt, Verify, Algorithms };

/// The words of a command line. Paths are as the user gave them; "-" is standard input or output.
struct Words
{
    std::optional<std::string> algorithm;
    std::optional<std::string> passwordFile;
    std::optional<std::string> keyFile;
    std::optional<std::string> ivFile;
    std::optional<std::string> output;
    std::vector<std::string> inputs;
    bool salt = false;
    bool seal = false;
    bool force = false;
    bool quiet = false;
    bool json = false;
    bool help = false;
    bool version = false;
};

struct CommandRow
{
    Command command;
    const char* name;
    const char* operands; ///< empty for a command that takes none
    const char* summary;
    const char* details; ///< sentences; may be empty
};

struct OptionRow
{
    unsigned commands;    ///< a bit for each, see bitOf; none for an option without a command
    char shortName;       ///< zero for none
    const char* longName; ///< without the dashes
    const char* argument; ///< null for a flag
    const char* help;
    std::variant<bool Words::*, std::optional<std::string> Words::*> target;
};

/// Two options of which one needs the other, or excludes it.
struct OptionRule
{
    const char* option;
    bool needs;
    const char* other;
};

constexpr unsigned bitOf(Command command)
{
    return 1U << static_cast<unsigned>(command);
}

std::span<const CommandRow> commandRows();
std::span<const OptionRow> optionRows();
std::span<const OptionRule> optionRules();

/// Null for an unknown name.
const CommandRow* findCommand(const std::string& name);
const CommandRow& rowOf(Command command);

} // namespace cli
