#include "app/window/Commands.h"

#include "app/window/CMainWindow.h"
#include "app/window/DialogCommands.h"
#include "app/window/FieldCommands.h"

#include <algorithm>
#include <climits>

namespace thisapp {

namespace {

constexpr Command Table[] = {
    {.id = "add-file",
     .menu = Menu::File,
     .text = QT_TRANSLATE_NOOP("Actions", "&Add file..."),
     .slot = &FieldCommands::onUiAddFileItem,
     .keys = {ctrl(Qt::Key_O), ctrl(Qt::Key_N)},
     .keyDescription = QT_TRANSLATE_NOOP("Shortcuts", "Add file to encrypt/decrypt")},
    {.id = "open-input-folder",
     .menu = Menu::File,
     .text = QT_TRANSLATE_NOOP("Actions", "Open folder with &input file"),
     .slot = &FieldCommands::onUiOpenInputFolderItem,
     .keys = {ctrl(Qt::Key_F9)},
     .keyDescription = QT_TRANSLATE_NOOP("Shortcuts", "Open folder with input file"),
     .offered = &CommandState::hasInput},
    {.id = "open-output-folder",
     .menu = Menu::File,
     .text = QT_TRANSLATE_NOOP("Actions", "Open folder with &output file"),
     .slot = &FieldCommands::onUiOpenOutputFolderItem,
     .keys = {ctrl(Qt::Key_F10)},
     .keyDescription = QT_TRANSLATE_NOOP("Shortcuts", "Open folder with output file"),
     .offered = &CommandState::hasOutput},
    {.id = "quit",
     .menu = Menu::File,
     .text = QT_TRANSLATE_NOOP("Actions", "&Quit"),
     .slot = &CMainWindow::onUiQuitItem,
     .startsGroup = true,
     .inToolBar = false,
     .role = QAction::QuitRole},
    {.id = "encrypt",
     .menu = Menu::Commands,
     .text = QT_TRANSLATE_NOOP("Actions", "&Encrypt"),
     .slot = &CMainWindow::onUiEncryptItem,
     .keys = {Qt::Key_F5},
     .keyDescription = QT_TRANSLATE_NOOP("Shortcuts", "Start encryption"),
     .offered = &CommandState::idle},
    {.id = "decrypt",
     .menu = Menu::Commands,
     .text = QT_TRANSLATE_NOOP("Actions", "&Decrypt"),
     .slot = &CMainWindow::onUiDecryptItem,
     .keys = {Qt::Key_F6},
     .keyDescription = QT_TRANSLATE_NOOP("Shortcuts", "Start decryption"),
     .offered = &CommandState::idle},
    {.id = "stop",
     .menu = Menu::Commands,
     .text = QT_TRANSLATE_NOOP("Actions", "&Stop encryption/decryption"),
     .slot = &CMainWindow::onUiStopItem,
     .keys = {Qt::Key_F8},
     .keyDescription = QT_TRANSLATE_NOOP("Shortcuts", "Stop encryption/decryption"),
     .offered = &CommandState::stoppable},
    {.id = "clear",
     .menu = Menu::Commands,
     .text = QT_TRANSLATE_NOOP("Actions", "&Clear entered data"),
     .slot = &CMainWindow::onUiClearItem,
     .keys = {ctrl(Qt::Key_F8)},
     .keyDescription = QT_TRANSLATE_NOOP("Shortcuts", "Clear entered data"),
     .startsGroup = true},
    {.id = "options",
     .menu = Menu::Settings,
     .text = QT_TRANSLATE_NOOP("Actions", "&Options..."),
     .slot = &DialogCommands::onUiOptionsItem,
     .role = QAction::PreferencesRole},
    {.id = "default-algorithm",
     .menu = Menu::Settings,
     .text = QT_TRANSLATE_NOOP("Actions", "&Default algorithm..."),
     .slot = &DialogCommands::onUiDefaultAlgorithmItem,
     .offered = &CommandState::idle},
    {.id = "algorithm-info",
     .menu = Menu::Help,
     .text = QT_TRANSLATE_NOOP("Actions", "&Information about algorithms..."),
     .slot = &DialogCommands::onUiAlgorithmInfoItem},
    {.id = "shortcuts",
     .menu = Menu::Help,
     .text = QT_TRANSLATE_NOOP("Actions", "&Keyboard shortcuts..."),
     .slot = &DialogCommands::onUiShortcutsItem},
    {.id = "about",
     .menu = Menu::Help,
     .text = QT_TRANSLATE_NOOP("Actions", "&About..."),
     .slot = &DialogCommands::onUiAboutItem,
     .startsGroup = true,
     .role = QAction::AboutRole},
};

/// Function keys by their number, and then the others.
int listRank(const Shortcut& shortcut)
{
    const int key = shortcut.key & ~ControlKey;
    return key >= Qt::Key_F1 ? key : INT_MAX;
}

} // namespace

std::span<const Command> commands()
{
    return Table;
}

const Command* commandFor(int key, Qt::KeyboardModifiers modifiers)
{
    if (modifiers.testFlag(Qt::AltModifier))
        return nullptr;
    const int pressed = modifiers.testFlag(Qt::ControlModifier) ? ControlKey + key : key;
    const auto* found = std::ranges::find_if(
        Table, [pressed](const Command& command) { return std::ranges::count(command.keys, pressed) > 0; });
    return found != std::end(Table) ? found : nullptr;
}

Shortcuts shortcuts()
{
    Shortcuts list;
    for (const Command& command : Table)
        for (const int key : command.keys)
            if (key != 0)
                list.push_back({key, command.keyDescription});
    std::ranges::stable_sort(list, {}, listRank);
    return list;
}

} // namespace thisapp
