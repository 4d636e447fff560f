#pragma once

#include <QString>

#include <vector>

namespace thisapp {

inline constexpr int ControlKey = static_cast<int>(Qt::CTRL);

/// The number of a key with Control.
constexpr int ctrl(Qt::Key key)
{
    return ControlKey + static_cast<int>(key);
}

/// A keyboard shortcut of the main window, as the lists show it that the user reads.
struct Shortcut
{
    int key; ///< a Qt::Key or ctrl() of one
    /// The source text of the description.
    const char* description;

    /// "'F5'" or "'Ctrl+O' (Cmd+O)"; never translated.
    QString keyText() const;
    /// In the current language.
    QString translatedDescription() const;
};

using Shortcuts = std::vector<Shortcut>;

} // namespace thisapp
