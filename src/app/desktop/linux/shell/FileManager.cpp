#include "app/desktop/linux/shell/FileManager.h"

#include "app/desktop/ShellCommand.h"
#include "app/desktop/linux/shell/EntryFormats.h"
#include "lib/platform/Folders.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace thisapp::desktop {

namespace {

namespace platform = tessaly::platform;

/// A file with all commands.
template <auto Format, const char* Name>
std::vector<ShellEntry> oneFile(const std::string& folder, const std::string& program)
{
    return {{folder + Name, Format(program)}};
}

/// A file for each command, named by its id between the two.
template <auto Format, const char* Suffix>
std::vector<ShellEntry> filePerCommand(const std::string& folder, const std::string& program)
{
    std::vector<ShellEntry> entries;
    for (const ShellCommand& command : shellCommands())
        entries.push_back(
            {folder + "/quillet-" + std::string(command.id) + Suffix, Format(program, command)});
    return entries;
}

/// A script for each command; the menu shows their file names.
template <const char* Variables>
std::vector<ShellEntry> scripts(const std::string& folder, const std::string& program)
{
    std::vector<ShellEntry> entries;
    for (const ShellCommand& command : shellCommands()) {
        std::string name = shellText(command.name);
        std::ranges::replace(name, '/', '-');
        entries.push_back({folder + "/" + name, script(program, command, Variables)});
    }
    return entries;
}

constexpr char DesktopFile[] = "/quillet.desktop";
constexpr char DesktopSuffix[] = ".desktop";
constexpr char NemoSuffix[] = ".nemo_action";
constexpr char Nautilus[] = "NAUTILUS";
constexpr char Caja[] = "CAJA";

// clang-format off
constexpr FileManager managers[] = {
    {"dolphin konqueror krusader", Menu::Context, platform::dataFolder, "/kio/servicemenus", true, oneFile<serviceMenu, DesktopFile>},
    {"nautilus", Menu::Context, platform::dataFolder, "/nautilus/scripts", true, scripts<Nautilus>},
    {"caja", Menu::Context, platform::configFolder, "/caja/scripts", true, scripts<Caja>},
    {"nemo", Menu::Context, platform::dataFolder, "/nemo/actions", false, filePerCommand<nemoAction, NemoSuffix>},
    {"pcmanfm pcmanfm-qt", Menu::Context, platform::dataFolder, "/file-manager/actions", false, filePerCommand<fileAction, DesktopSuffix>},
    {"thunar Thunar", Menu::SendTo, platform::dataFolder, "/Thunar/sendto", false, oneFile<sendToEntry, DesktopFile>},
};
// clang-format on

} // namespace

bool isFileManagerThere(std::string_view names)
{
    const auto hasFolder = [](const std::string& base, const QString& name) {
        return !base.empty() && QFileInfo(QFile::decodeName(base.c_str()) + '/' + name).isDir();
    };
    return std::ranges::any_of(
        QString::fromStdString(std::string(names)).split(' '), [&](const QString& name) {
            return !QStandardPaths::findExecutable(name).isEmpty() ||
                   hasFolder(platform::configFolder(), name) || hasFolder(platform::dataFolder(), name);
        });
}

std::span<const FileManager> fileManagers()
{
    return managers;
}

} // namespace thisapp::desktop
