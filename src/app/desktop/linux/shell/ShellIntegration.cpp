#include "app/desktop/ShellIntegration.h"

#include "app/desktop/EntryOwnership.h"
#include "app/desktop/linux/shell/FileManager.h"
#include "app/desktop/linux/shell/OwnedFile.h"
#include "app/desktop/linux/shell/ThunarActions.h"
#include "lib/logger/Log.h"
#include "lib/platform/Folders.h"

#include <QFile>

#include <algorithm>
#include <string>

namespace thisapp::desktop {

namespace {

void tell(bool done, const std::string& path)
{
    if (!done)
        tessaly::logger::log(tessaly::logger::Warning, "desktop") << "Failed to update shell entry " << path;
}

void update(const FileManager& manager, const std::string& program, const EntryOwnership& ownership,
            bool wanted)
{
    const std::string base = manager.baseFolder();
    if (base.empty())
        return;
    const std::string folder = base + manager.folder;
    const auto entries = wanted ? manager.entries(folder, program) : std::vector<ShellEntry>();
    // The names of some follow the language, and an earlier version may have had others.
    for (const OwnedFile& file : OwnedFile::in(folder))
        if (std::ranges::count(entries, file.path(), &ShellEntry::path) == 0 &&
            ownership.mayChange(file.program()))
            tell(file.remove(base), file.path());
    for (const ShellEntry& entry : entries)
        if (const OwnedFile file(entry.path); ownership.mayChange(file.program()))
            tell(file.write(entry.content, manager.executable), entry.path);
}

void updateThunarActions(const std::string& program, const EntryOwnership& ownership, bool wanted)
{
    const std::string base = tessaly::platform::configFolder();
    if (const ThunarActions actions(base); !base.empty() && ownership.mayChange(actions.program()))
        tell(wanted ? actions.write(program) : actions.remove(), "of Thunar's custom actions");
}

} // namespace

void updateShellIntegration(const QString& program, bool contextMenu, bool sendTo)
{
    const std::string nativeProgram = QFile::encodeName(program).toStdString();
    const EntryOwnership ownership(nativeProgram);
    for (const FileManager& manager : fileManagers()) {
        const bool isOn = manager.menu == Menu::Context ? contextMenu : sendTo;
        update(manager, nativeProgram, ownership, isOn && isFileManagerThere(manager.names));
    }
    updateThunarActions(nativeProgram, ownership, contextMenu && isFileManagerThere("thunar Thunar"));
}

} // namespace thisapp::desktop
