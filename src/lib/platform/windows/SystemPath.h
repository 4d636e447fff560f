#pragma once

#include <filesystem>
#include <string>

/// Paths as the system's calls take them.
namespace tessaly::platform {

/// Everybody may do with an open file what they could before.
inline constexpr unsigned long ShareAll = 7; // FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE

/// From the root on, of a drive or a share; empty where the system cannot tell.
std::wstring fullPath(const std::filesystem::path& path);

/// The path as it is, or, when it is too long for that, absolute and marked as a long one.
std::wstring systemPath(const std::filesystem::path& path);

/// The system would take the path, or its file name, for something else than the file of that very name: a
/// device ("NUL", "com1.txt"), a stream within another file ("a:b"), a name without its last dots and blanks
/// ("a. "), a pattern ("*"), or what stands before a zero.
bool isMisread(const std::filesystem::path& path);

} // namespace tessaly::platform
