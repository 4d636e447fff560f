#pragma once

#include <span>
#include <string>
#include <string_view>

namespace thisapp::desktop {

/// One of the program's entries in a file manager's menu.
struct ShellCommand
{
    std::string_view id;
    const char* name;         ///< English
    const char* comment;      ///< English
    std::string_view options; ///< of the program, each with a blank after it
};

/// Encrypt, decrypt, open, in the order of the menus.
std::span<const ShellCommand> shellCommands();

/// One of the texts of this folder in the program's present language, UTF-8.
std::string shellText(const char* english);

} // namespace thisapp::desktop
