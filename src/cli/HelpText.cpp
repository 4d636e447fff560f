#include "cli/HelpText.h"

#include "crypto/catalogue/Catalogue.h"

#include <algorithm>
#include <sstream>
#include <string_view>
#include <utility>
#include <vector>

namespace cli {

namespace {

constexpr std::size_t Width = 80;

constexpr const char* Footer =
    "Without a password file or key files, the password is asked for on the terminal, once for all files. "
    "As FILE, - is standard input.\n"
    "Exit status: 0 done, 1 failed, 2 wrong usage, 3 wrong password, key, IV or algorithm or a damaged file, "
    "130 interrupted; of several files the highest.";

/// Breaks at blanks, so that no line is longer; what follows a break is indented.
std::string wrapped(std::string_view text, std::size_t indent)
{
    std::string result;
    std::size_t column = indent;
    std::istringstream words{std::string(text)};
    for (std::string word; words >> word;) {
        const bool isFirst = result.empty();
        if (!isFirst && column + 1 + word.size() > Width) {
            result += '\n' + std::string(indent, ' ');
            column = indent;
        } else if (!isFirst) {
            result += ' ';
            ++column;
        }
        result += word;
        column += word.size();
    }
    return result;
}

using TwoColumns = std::vector<std::pair<std::string, std::string>>;

std::string table(const char* title, const TwoColumns& rows)
{
    std::size_t left = 0;
    for (const auto& row : rows)
        left = std::max(left, row.first.size());
    const std::size_t indent = left + 4;
    std::string text = std::string("\n") + title + ":\n";
    for (const auto& [name, help] : rows)
        text += "  " + name + std::string(left - name.size() + 2, ' ') + wrapped(help, indent) + '\n';
    return text;
}

std::string optionText(const OptionRow& option)
{
    std::string text = option.shortName ? std::string{'-', option.shortName, ',', ' '} : "    ";
    text += std::string("--") + option.longName;
    return option.argument ? text + ' ' + option.argument : text;
}

std::string optionTable(unsigned commands)
{
    TwoColumns rows;
    for (const OptionRow& option : optionRows())
        if (commands == 0 ? option.commands == 0 : (option.commands & commands) != 0)
            rows.emplace_back(optionText(option), option.help);
    return table("Options", rows);
}

std::string footer()
{
    const std::string_view text = Footer;
    const auto end = text.find('\n');
    return '\n' + wrapped(text.substr(0, end), 0) + '\n' + wrapped(text.substr(end + 1), 0) + '\n';
}

std::string programHelp()
{
    const std::string algorithms = std::to_string(tessaly::crypto::catalogue().size());
    TwoColumns commands;
    for (const CommandRow& row : commandRows())
        commands.emplace_back(row.name, row.summary);
    return "Encrypts and decrypts files with any of " + algorithms + " symmetric algorithms.\n" +
           "\nUsage: quillet-cli COMMAND [OPTION]... [FILE]...\n" + table("Commands", commands) +
           optionTable(0) + "\n\"quillet-cli COMMAND --help\" tells the options of a command.\n";
}

std::string commandHelp(const CommandRow& row)
{
    const std::string operands = *row.operands ? std::string(" ") + row.operands : "";
    const std::string details = *row.details ? ' ' + std::string(row.details) : "";
    return wrapped(std::string(row.summary) + '.' + details, 0) + "\n\nUsage: quillet-cli " + row.name +
           " [OPTION]..." + operands + '\n' + optionTable(bitOf(row.command));
}

} // namespace

std::string helpText(std::optional<Command> command)
{
    const bool readsFiles = !command || *rowOf(*command).operands != 0;
    return (command ? commandHelp(rowOf(*command)) : programHelp()) + (readsFiles ? footer() : "");
}

} // namespace cli
