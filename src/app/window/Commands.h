#pragma once

#include "ui/shortcuts/Shortcut.h"

#include <QAction>

#include <array>
#include <cstddef>
#include <span>
#include <variant>

class CMainWindow;

namespace thisapp {

class DialogCommands;
class FieldCommands;

enum class Menu : std::size_t { File, Commands, Settings, Help, Count };

/// What decides whether a command is offered.
struct CommandState
{
    bool idle = true;
    bool stoppable = false;
    bool hasInput = false;
    bool hasOutput = false;
};

/// Who does a command. Has no default, so that no row of the table can go without.
struct CommandSlot
{
    template <class Owner>
    constexpr CommandSlot(void (Owner::*slot)()) : call(slot)
    {
    }

    std::variant<void (CMainWindow::*)(), void (FieldCommands::*)(), void (DialogCommands::*)()> call;
};

/// One command of the main window. To add one is to add its row to the table, and to write its slot.
struct Command
{
    /// Its action's object name, and the name of its icon.
    const char* id;
    Menu menu;
    const char* text; ///< source text
    CommandSlot slot;
    /// Each a Qt::Key or ctrl() of one; 0 for none. They work whether the command is offered or not.
    std::array<int, 2> keys = {};
    /// What the lists of shortcuts say of the keys; source text.
    const char* keyDescription = nullptr;
    /// Null when it always is.
    bool CommandState::*offered = nullptr;
    bool startsGroup = false; ///< in its menu and in the tool bar
    bool inToolBar = true;
    QAction::MenuRole role = QAction::TextHeuristicRole;
};

/// In the order of menus and tool bar.
std::span<const Command> commands();

/// The command of a pressed key; null for none. Only Control and Alt count: any key with Alt is no
/// shortcut, while Shift and the rest change nothing.
const Command* commandFor(int key, Qt::KeyboardModifiers modifiers);

/// All keys, in the order in which they are listed.
Shortcuts shortcuts();

} // namespace thisapp
