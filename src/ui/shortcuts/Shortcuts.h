#pragma once

#include <QKeySequence>
#include <QString>

#include <optional>
#include <span>

/// The keyboard shortcuts of the main window: its key handler, its menus and the lists that the user
/// reads all come from this one table.
namespace thisapp {

enum class Command { Encrypt, Decrypt, Stop, Clear, OpenInputFolder, OpenOutputFolder, AddFile };

struct Shortcut
{
    Command command;
    Qt::Key key;
    bool control;
    /// How the lists print the key; never translated.
    const char* keyText;
    /// The source text of the description.
    const char* description;

    QKeySequence sequence() const
    {
        return (control ? static_cast<int>(Qt::CTRL) : 0) + static_cast<int>(key);
    }
    /// In the current language.
    QString translatedDescription() const;
};

/// In the order in which they are listed.
std::span<const Shortcut> shortcuts();

/// The command of a pressed key. Only Control and Alt count: any key with Alt is no shortcut, while
/// Shift and the rest change nothing.
std::optional<Command> commandFor(int key, Qt::KeyboardModifiers modifiers);

} // namespace thisapp
