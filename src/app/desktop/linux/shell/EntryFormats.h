#pragma once

#include "app/desktop/ShellCommand.h"

#include <string>

/// The text of one entry, a format a function. `program` is the absolute path of what it starts.
namespace thisapp::desktop {

/// For KDE's file managers: all commands in one file, which they read only when it is executable.
std::string serviceMenu(const std::string& program);

/// A shell script for the script menus of Nautilus and Caja, executable, too. `variables` is what the
/// names of their environment variables begin with, such as "CAJA".
std::string script(const std::string& program, const ShellCommand& command, std::string_view variables);

std::string nemoAction(const std::string& program, const ShellCommand& command);

/// In the desktop-independent format for actions on files, which PCManFM and PCManFM-Qt read.
std::string fileAction(const std::string& program, const ShellCommand& command);

/// For Thunar's menu "Send to".
std::string sendToEntry(const std::string& program);

} // namespace thisapp::desktop
