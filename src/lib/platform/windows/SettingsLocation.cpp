#include "lib/platform/SettingsLocation.h"

namespace tessaly::platform {

std::string settingsLocation(std::string_view organisation, std::string_view application)
{
    return std::string(R"(HKEY_CURRENT_USER\Software\)").append(organisation) + '\\' +
           std::string(application) + '\\';
}

} // namespace tessaly::platform
