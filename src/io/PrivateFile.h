#pragma once

#include "lib/err/ResultCode.h"
#include "lib/secret/Secret.h"

#include <filesystem>
#include <string_view>

namespace tessaly::io {

/// Writes a whole file that only its owner can read or write, replacing an existing one in one
/// step: after a failure the old file is as it was. On success it has reached the disk.
ResultCode writePrivateFile(const std::filesystem::path& path, std::string_view contents);

/// Reads a whole regular file of up to 64 KiB, the most that a file of secrets can need; (5, 42) for a
/// larger one or what is no regular file.
ResultCode readSmallFile(const std::filesystem::path& path, SecretBytes& contents);

} // namespace tessaly::io
