#pragma once

#include "lib/err/ResultCode.h"

#include <string>
#include <string_view>

namespace tessaly::platform {

/// Writes a whole file that only its owner can read or write, replacing an existing one in one
/// step: after a failure the old file is as it was. The path is UTF-8.
ResultCode writePrivateFile(const std::string& path, std::string_view contents);

} // namespace tessaly::platform
