#include "app/desktop/linux/shell/EntryFormats.h"

#include "app/desktop/linux/shell/CommandQuoting.h"
#include "app/desktop/linux/shell/OwnedFile.h"

#include <QCoreApplication>

#include <map>

namespace thisapp::desktop {

namespace {

using Values = std::map<std::string_view, std::string>;

/// The text with each {name} replaced by its value, in one pass: values are never looked into.
std::string filled(std::string_view text, const Values& values)
{
    std::string result;
    for (std::size_t open; (open = text.find('{')) != std::string_view::npos;) {
        const std::size_t close = text.find('}', open);
        result += text.substr(0, open);
        result += values.at(text.substr(open + 1, close - open - 1));
        text.remove_prefix(close + 1);
    }
    return result.append(text);
}

/// What all formats are made of; the formats in desktop-entry syntax take the texts in its quoting.
Values valuesFor(const std::string& program)
{
    return {
        {"head", OwnedFile::head(program)},
        {"path", desktopString(program)},
        {"exec", execArgument(program)},
    };
}

Values valuesFor(const std::string& program, const ShellCommand& command)
{
    Values values = valuesFor(program);
    values["name"] = desktopString(shellText(command.name));
    values["comment"] = desktopString(shellText(command.comment));
    values["options"] = command.options;
    return values;
}

constexpr std::string_view ServiceMenu = R"({head}[Desktop Entry]
Type=Service
X-KDE-ServiceTypes=KonqPopupMenu/Plugin
MimeType=application/octet-stream;
X-KDE-Protocols=file
X-KDE-Submenu=Quillet
Icon=quillet
TryExec={path}
Actions={actions}
)";

constexpr std::string_view ServiceAction = R"(
[Desktop Action {id}]
Name={name}
Comment={comment}
Icon=quillet
Exec={exec} {options}-ifile %F
)";

constexpr std::string_view SendTo = R"({head}[Desktop Entry]
Type=Application
Version=1.0
Name=Quillet
Icon=quillet
TryExec={path}
Exec={exec} -ifile %F
)";

constexpr std::string_view NemoAction = R"({head}[Nemo Action]
Name={name}
Comment={comment}
Icon-Name=quillet
Exec={command} {options}-ifile %F
Selection=notnone
Extensions=nodirs;
Quote=double
Dependencies={dependency};
)";

// PCManFM 1.3 crashes where Schemes are given, shows the Tooltip in place of the Name, and finds no
// absolute path of TryExec.
constexpr std::string_view FileAction = R"({head}[Desktop Entry]
Type=Action
Name={name}
Icon=quillet
Profiles=files;

[X-Action-Profile files]
MimeTypes=all/allfiles;
Exec={exec} {options}-ifile %F
)";

// The script's arguments are names that were unescaped once too often; the URIs are whole. What lies on
// another machine may have a path on this one. The program takes a file whose name begins with "file://"
// for that file, so it is started where there is none.
constexpr std::string_view Script = R"(#!/bin/sh
{head}program={shell}
if [ ! -x "$program" ]; then
  text={gone}"
$0"
  command -v zenity >/dev/null && exec zenity --error --no-markup --text "$text"
  command -v kdialog >/dev/null && exec kdialog --error "$text"
  command -v xmessage >/dev/null && exec xmessage "$text"
  command -v notify-send >/dev/null && exec notify-send Quillet "$text"
  exit 1
fi
set -f
IFS='
'
files=${variables}_SCRIPT_SELECTED_URIS
for uri in $files; do
  case $uri in
    file://*) ;;
    *) files=${variables}_SCRIPT_SELECTED_FILE_PATHS ;;
  esac
done
cd /
exec "$program" {options}-ifile $files
)";

/// A list's separator within one of its values.
std::string listValue(std::string value)
{
    for (std::size_t at = 0; (at = value.find(';', at)) != std::string::npos; at += 2)
        value.insert(at, 1, '\\');
    return value;
}

std::string goneText(const std::string& program)
{
    const QString text = QCoreApplication::translate(
        "ShellIntegration",
        "Quillet is not at %1 any more. Start it once from its new place to mend this entry of "
        "the menu, or delete the entry:");
    return text.arg(QString::fromLocal8Bit(program.c_str())).toStdString();
}

} // namespace

std::string serviceMenu(const std::string& program)
{
    std::string actions;
    std::string groups;
    for (const ShellCommand& command : shellCommands()) {
        Values values = valuesFor(program, command);
        values["id"] = command.id;
        actions.append(command.id).append(";");
        groups += filled(ServiceAction, values);
    }
    Values values = valuesFor(program);
    values["actions"] = actions;
    return filled(ServiceMenu, values) + groups;
}

std::string sendToEntry(const std::string& program)
{
    return filled(SendTo, valuesFor(program));
}

std::string nemoAction(const std::string& program, const ShellCommand& command)
{
    Values values = valuesFor(program, command);
    values["command"] = desktopString(shellWord(program));
    values["dependency"] = listValue(desktopString(program));
    return filled(NemoAction, values);
}

std::string fileAction(const std::string& program, const ShellCommand& command)
{
    return filled(FileAction, valuesFor(program, command));
}

std::string script(const std::string& program, const ShellCommand& command, std::string_view variables)
{
    Values values = valuesFor(program, command);
    values["shell"] = shellWord(program);
    values["gone"] = shellWord(goneText(program));
    values["variables"] = variables;
    return filled(Script, values);
}

} // namespace thisapp::desktop
