#pragma once

#include "lib/platform/File.h"

#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>

/// What files and folders share.
namespace tessaly::platform {

inline constexpr int ReadingFlags = O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK;
inline constexpr int WritingFlags = O_RDWR | O_CLOEXEC | O_NOCTTY | O_NONBLOCK;

FileStatus toFileStatus(const struct stat& info);
FileStatus entryStatus(int folder, const char* name);

/// The open file has an access list beyond the permission bits.
bool hasAccessList(int handle);

/// A path with an embedded zero names nothing: the system would cut it there.
bool isUsable(const std::filesystem::path& path);

} // namespace tessaly::platform
