#pragma once

#include <string>
#include <string_view>

namespace thisapp::desktop {

/// A value of type string in a desktop entry.
std::string desktopString(std::string_view text);

/// One argument in a desktop entry's Exec line.
std::string execArgument(std::string_view argument);

/// One word of a shell command.
std::string shellWord(std::string_view word);

/// The word that a command made with it begins with.
std::string firstShellWord(std::string_view command);

} // namespace thisapp::desktop
