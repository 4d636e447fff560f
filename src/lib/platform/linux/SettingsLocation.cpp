#include "lib/platform/SettingsLocation.h"

#include <cstdlib>
#include <filesystem>

#include <pwd.h>
#include <unistd.h>

namespace tessaly::platform {
namespace {

std::filesystem::path homeFolder()
{
    if (const char* home = std::getenv("HOME"); home != nullptr && *home != '\0')
        return home;
    const passwd* user = getpwuid(getuid());
    return user != nullptr ? user->pw_dir : "/";
}

std::filesystem::path configurationFolder()
{
    // The XDG base directory rules: a relative path in the variable is to be ignored.
    if (const char* folder = std::getenv("XDG_CONFIG_HOME"); folder != nullptr && *folder == '/')
        return folder;
    return homeFolder() / ".config";
}

} // namespace

std::string settingsLocation(std::string_view organisation, std::string_view application)
{
    return (configurationFolder() / organisation / std::string(application).append(".conf")).string();
}

} // namespace tessaly::platform
