#include "lib/platform/SettingsLocation.h"

#include "lib/platform/Folders.h"

#include <filesystem>

namespace tessaly::platform {

std::string settingsLocation(std::string_view organisation, std::string_view application)
{
    // Absolute even for a user without a home, so that no settings ever land in the working directory.
    const auto folder = std::filesystem::path("/") / configFolder() / organisation;
    return (folder / std::string(application).append(".conf")).string();
}

} // namespace tessaly::platform
