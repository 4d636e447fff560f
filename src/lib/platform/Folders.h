#pragma once

#include "lib/err/ResultCode.h"

#include <string>

namespace tessaly::platform {

/// The user's base folders, without a trailing separator; empty when the user has no home.
std::string configFolder();
std::string dataFolder();
std::string stateFolder();

/// Creates the folder and its missing ancestors, each for the user alone (0700). Succeeds when it
/// exists already, whatever its permissions.
ResultCode createPrivateFolders(const std::string& path);

/// The same for everybody that the umask allows; each folder made survives a power cut once this
/// returns, as far as its file system can promise that.
ResultCode createFolders(const std::string& path);

} // namespace tessaly::platform
