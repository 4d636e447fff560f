#include "ui/shortcuts/Shortcuts.h"

#include <QCoreApplication>

#include <algorithm>

namespace thisapp {
namespace {

constexpr Shortcut Table[] = {
    {Command::Encrypt, Qt::Key_F5, false, "'F5'", QT_TRANSLATE_NOOP("Shortcuts", "Start encryption")},
    {Command::Decrypt, Qt::Key_F6, false, "'F6'", QT_TRANSLATE_NOOP("Shortcuts", "Start decryption")},
    {Command::Stop, Qt::Key_F8, false, "'F8'", QT_TRANSLATE_NOOP("Shortcuts", "Stop encryption/decryption")},
    {Command::Clear, Qt::Key_F8, true, "'Ctrl+F8' (Cmd+F8)",
     QT_TRANSLATE_NOOP("Shortcuts", "Clear entered data")},
    {Command::OpenInputFolder, Qt::Key_F9, true, "'Ctrl+F9' (Cmd+F9)",
     QT_TRANSLATE_NOOP("Shortcuts", "Open folder with input file")},
    {Command::OpenOutputFolder, Qt::Key_F10, true, "'Ctrl+F10' (Cmd+F10)",
     QT_TRANSLATE_NOOP("Shortcuts", "Open folder with output file")},
    {Command::AddFile, Qt::Key_O, true, "'Ctrl+O' (Cmd+O)",
     QT_TRANSLATE_NOOP("Shortcuts", "Add file to encrypt/decrypt")},
    {Command::AddFile, Qt::Key_N, true, "'Ctrl+N' (Cmd+N)",
     QT_TRANSLATE_NOOP("Shortcuts", "Add file to encrypt/decrypt")},
};

} // namespace

QString Shortcut::translatedDescription() const
{
    return QCoreApplication::translate("Shortcuts", description);
}

std::span<const Shortcut> shortcuts()
{
    return Table;
}

std::optional<Command> commandFor(int key, Qt::KeyboardModifiers modifiers)
{
    if (modifiers.testFlag(Qt::AltModifier))
        return std::nullopt;
    const bool control = modifiers.testFlag(Qt::ControlModifier);
    const auto* found = std::find_if(std::begin(Table), std::end(Table),
                                     [=](const Shortcut& s) { return s.key == key && s.control == control; });
    return found != std::end(Table) ? std::optional(found->command) : std::nullopt;
}

} // namespace thisapp
