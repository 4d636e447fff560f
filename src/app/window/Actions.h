#pragma once

#include "app/window/Commands.h"

#include <array>
#include <functional>
#include <vector>

class QMainWindow;
class QMenu;
class QToolBar;

namespace thisapp {

/// The main window's menus and tool bar, made from the table of commands. The actions show the
/// shortcuts, but don't react to keys themselves: the window's key handler does.
class Actions
{
public:
    /// Fills the window's menu bar and adds a tool bar; both belong to the window. `run` is called with
    /// the command that the user has chosen.
    Actions(QMainWindow& window, const std::function<void(const Command&)>& run);

    /// Enables what is offered in this state.
    void setState(const CommandState& state);
    /// Sets all texts in the current language.
    void retranslate();

private:
    std::vector<QAction*> m_actions; ///< in the order of the table
    std::array<QMenu*, static_cast<std::size_t>(Menu::Count)> m_menus;
    QToolBar* m_toolBar;
};

} // namespace thisapp
