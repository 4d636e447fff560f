#pragma once

#include "lib/err/ResultCode.h"

#include <filesystem>
#include <string_view>

namespace tessaly::io {

/// Writes a whole file that only its owner can read or write, replacing an existing one in one
/// step: after a failure the old file is as it was. On success it has reached the disk.
ResultCode writePrivateFile(const std::filesystem::path& path, std::string_view contents);

} // namespace tessaly::io
