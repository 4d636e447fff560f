#include "app/desktop/ShellIntegration.h"

#include "app/desktop/linux/CommandQuoting.h"
#include "app/desktop/linux/OwnedFile.h"
#include "lib/logger/Log.h"
#include "lib/platform/Folders.h"

#include <QCoreApplication>
#include <QFile>

#include <map>
#include <string>
#include <string_view>

namespace thisapp::desktop {

namespace {

namespace platform = tessaly::platform;

// Every file manager hands over absolute paths, except for the two that run scripts.
constexpr std::string_view ServiceMenu = R"({marker}
[Desktop Entry]
Type=Service
X-KDE-ServiceTypes=KonqPopupMenu/Plugin
MimeType=application/octet-stream;
X-KDE-RequiredNumberOfUrls=1
X-KDE-Protocols=file
X-KDE-Submenu=Quillet
Icon=quillet
TryExec={path}
Actions=encrypt;decrypt;open;

[Desktop Action encrypt]
Name={encrypt}
Icon=quillet
Exec={exec} -encrypt -start -ifile %f

[Desktop Action decrypt]
Name={decrypt}
Icon=quillet
Exec={exec} -decrypt -start -ifile %f

[Desktop Action open]
Name={open}
Icon=quillet
Exec={exec} -ifile %f
)";

constexpr std::string_view SendToEntry = R"({marker}
[Desktop Entry]
Type=Application
Version=1.0
Name=Quillet
Icon=quillet
TryExec={path}
Exec={exec} -ifile %f
)";

constexpr std::string_view NemoAction = R"({marker}
[Nemo Action]
Name={label}
Icon-Name=quillet
Exec={command}{options} -ifile %F
Selection=s
Extensions=nodirs;
Quote=double
)";

constexpr std::string_view Script = R"(#!/bin/sh
{marker}
for file do
  case $file in
    /*) ;;
    *) file=$PWD/$file ;;
  esac
  {shell}{options} -ifile "$file" &
done
)";

enum class Menu { Context, SendTo };

struct Entry
{
    Menu menu;
    std::string (*baseFolder)();
    const char* path; ///< below the base folder; scripts are named as they show in the menu
    bool executable;
    std::string_view content;
    const char* label = "";
    const char* options = "";
};

constexpr const char* Encrypt = QT_TRANSLATE_NOOP("ShellIntegration", "Encrypt with Quillet");
constexpr const char* Decrypt = QT_TRANSLATE_NOOP("ShellIntegration", "Decrypt with Quillet");
constexpr const char* Open = QT_TRANSLATE_NOOP("ShellIntegration", "Open with Quillet");
constexpr const char* EncryptOptions = " -encrypt -start";
constexpr const char* DecryptOptions = " -decrypt -start";

// clang-format off
constexpr Entry entries[] = {
    {Menu::Context, platform::dataFolder, "/kio/servicemenus/quillet.desktop", true, ServiceMenu},
    {Menu::Context, platform::dataFolder, "/nautilus/scripts/Encrypt with Quillet", true, Script, "", EncryptOptions},
    {Menu::Context, platform::dataFolder, "/nautilus/scripts/Decrypt with Quillet", true, Script, "", DecryptOptions},
    {Menu::Context, platform::dataFolder, "/nautilus/scripts/Open with Quillet", true, Script},
    {Menu::Context, platform::configFolder, "/caja/scripts/Encrypt with Quillet", true, Script, "", EncryptOptions},
    {Menu::Context, platform::configFolder, "/caja/scripts/Decrypt with Quillet", true, Script, "", DecryptOptions},
    {Menu::Context, platform::configFolder, "/caja/scripts/Open with Quillet", true, Script},
    {Menu::Context, platform::dataFolder, "/nemo/actions/quillet-encrypt.nemo_action", false, NemoAction, Encrypt, EncryptOptions},
    {Menu::Context, platform::dataFolder, "/nemo/actions/quillet-decrypt.nemo_action", false, NemoAction, Decrypt, DecryptOptions},
    {Menu::Context, platform::dataFolder, "/nemo/actions/quillet-open.nemo_action", false, NemoAction, Open},
    {Menu::SendTo, platform::dataFolder, "/Thunar/sendto/quillet.desktop", false, SendToEntry},
};
// clang-format on

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

std::string translated(const char* label)
{
    return desktopString(QCoreApplication::translate("ShellIntegration", label).toStdString());
}

std::string contentOf(const Entry& entry, const std::string& program)
{
    return filled(entry.content, {
                                     {"marker", std::string(OwnedFile::Marker)},
                                     {"path", desktopString(program)},
                                     {"exec", execArgument(program)},
                                     {"shell", shellWord(program)},
                                     {"command", desktopString(shellWord(program))},
                                     {"options", entry.options},
                                     {"label", translated(entry.label)},
                                     {"encrypt", translated(Encrypt)},
                                     {"decrypt", translated(Decrypt)},
                                     {"open", translated(Open)},
                                 });
}

} // namespace

void updateShellIntegration(const QString& program, bool contextMenu, bool sendTo)
{
    const std::string nativeProgram = QFile::encodeName(program).toStdString();
    for (const Entry& entry : entries) {
        const std::string folder = entry.baseFolder();
        if (folder.empty())
            continue;
        const bool wanted = entry.menu == Menu::Context ? contextMenu : sendTo;
        const OwnedFile file(folder + entry.path);
        if (!(wanted ? file.write(contentOf(entry, nativeProgram), entry.executable) : file.remove()))
            tessaly::logger::log(tessaly::logger::Warning, "desktop")
                << "Failed to update shell entry " << folder << entry.path;
    }
}

} // namespace thisapp::desktop
