#pragma once

#include <QAction>

#include <array>
#include <cstddef>

class QMainWindow;
class QMenu;
class QToolBar;

namespace thisapp {

/// Every command of the main window, in the order of its menus.
enum class ActionId : std::size_t {
    AddFile,
    OpenInputFolder,
    OpenOutputFolder,
    Quit,
    Encrypt,
    Decrypt,
    Stop,
    Clear,
    Options,
    DefaultAlgorithm,
    AlgorithmInfo,
    Shortcuts,
    About,
    Count,
};

/// The main window's menus and tool bar, made from one table. The actions show the shortcuts of
/// ui/shortcuts, but don't react to keys themselves: the window's key handler does.
class Actions
{
public:
    /// Fills the window's menu bar and adds a tool bar; both belong to the window.
    explicit Actions(QMainWindow& window);

    QAction& operator[](ActionId id) const { return *m_actions[static_cast<std::size_t>(id)]; }
    /// Sets all texts in the current language.
    void retranslate();

private:
    static constexpr std::size_t MenuCount = 4;

    std::array<QAction*, static_cast<std::size_t>(ActionId::Count)> m_actions;
    std::array<QMenu*, MenuCount> m_menus;
    QToolBar* m_toolBar;
};

} // namespace thisapp
