#include "app/desktop/linux/shell/CommandQuoting.h"

namespace thisapp::desktop {

std::string desktopString(std::string_view text)
{
    std::string value;
    for (const char c : text) {
        switch (c) {
        case '\\':
            value += "\\\\";
            break;
        case '\n':
            value += "\\n";
            break;
        case '\r':
            value += "\\r";
            break;
        case '\t':
            value += "\\t";
            break;
        default:
            value += c;
        }
    }
    return value;
}

std::string execArgument(std::string_view argument)
{
    std::string quoted = "\"";
    for (const char c : argument) {
        if (c == '"' || c == '`' || c == '$' || c == '\\')
            quoted += '\\';
        else if (c == '%')
            quoted += '%'; // a single one would be a field code
        quoted += c;
    }
    // The rules for strings hold on top of those for quoting.
    return desktopString(quoted + "\"");
}

std::string shellWord(std::string_view word)
{
    std::string quoted = "'";
    for (const char c : word)
        if (c == '\'')
            quoted += "'\\''";
        else
            quoted += c;
    return quoted + "'";
}

std::string firstShellWord(std::string_view command)
{
    std::string word;
    bool isQuoted = false;
    for (std::size_t i = 0; i < command.size() && (isQuoted || command[i] != ' '); ++i) {
        if (command[i] == '\'')
            isQuoted = !isQuoted;
        else if (isQuoted || command[i] != '\\')
            word += command[i];
        else if (++i < command.size())
            word += command[i];
    }
    return word;
}

} // namespace thisapp::desktop
