#pragma once

#include <string>
#include <string_view>

namespace tessaly::platform {

/// Where a program keeps the current user's settings, in the form that the native settings format
/// takes: here the file <organisation>/<application>.conf in the XDG configuration folder, in the
/// file system's encoding; on a registry platform the key
/// HKEY_CURRENT_USER\Software\<organisation>\<application>\.
std::string settingsLocation(std::string_view organisation, std::string_view application);

} // namespace tessaly::platform
