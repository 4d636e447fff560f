#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace thisapp::desktop {

/// The setting that an entry follows.
enum class Menu { Context, SendTo };

/// An entry as it should be: the path of its file and what that holds.
struct ShellEntry
{
    std::string path;
    std::string content;
};

/// File managers that read the same entries.
struct FileManager
{
    std::string_view names; ///< of programs and of folders below the user's config and data, a blank between
    Menu menu;
    std::string (*baseFolder)();
    const char* folder; ///< of the entries, below the base folder
    bool executable;    ///< the entries
    std::vector<ShellEntry> (*entries)(const std::string& folder, const std::string& program);
};

/// Whether a program of one of these names is installed, or has left its folder with this user.
bool isFileManagerThere(std::string_view names);

/// All but Thunar's actions, which share a file with the user's own.
std::span<const FileManager> fileManagers();

} // namespace thisapp::desktop
