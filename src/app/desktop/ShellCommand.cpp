#include "app/desktop/ShellCommand.h"

#include <QCoreApplication>

namespace thisapp::desktop {

namespace {

constexpr ShellCommand commands[] = {
    {"encrypt", QT_TRANSLATE_NOOP("ShellIntegration", "Encrypt with Quillet"),
     QT_TRANSLATE_NOOP("ShellIntegration", "Encrypt the selected files"), "-encrypt -start "},
    {"decrypt", QT_TRANSLATE_NOOP("ShellIntegration", "Decrypt with Quillet"),
     QT_TRANSLATE_NOOP("ShellIntegration", "Decrypt the selected files"), "-decrypt -start "},
    {"open", QT_TRANSLATE_NOOP("ShellIntegration", "Open with Quillet"),
     QT_TRANSLATE_NOOP("ShellIntegration", "Open the selected files in Quillet's window"), ""},
};

} // namespace

std::span<const ShellCommand> shellCommands()
{
    return commands;
}

std::string shellText(const char* english)
{
    return QCoreApplication::translate("ShellIntegration", english).toStdString();
}

} // namespace thisapp::desktop
