#pragma once

#include <filesystem>
#include <string>

namespace tessaly::io {

enum class InputCheck {
    Usable,
    NotFound,
    NotRegular, ///< a directory, device, FIFO or socket
};

enum class OutputCheck {
    Free,
    Exists,       ///< a regular file
    MatchesInput, ///< by path, letter case ignored, or by symbolic or hard link
    NotRegular,   ///< a directory, device, FIFO, socket or symbolic link
    NoFolder,     ///< the folder that it is to stand in is missing, or is none
};

InputCheck checkInput(const std::filesystem::path& input);

/// What stands where the output is to go. Never blocks and changes nothing.
OutputCheck checkOutput(const std::filesystem::path& input, const std::filesystem::path& output);

/// Absolute paths without "." and "..", compared without regard to letter case.
bool samePath(const std::filesystem::path& first, const std::filesystem::path& second);
/// Equal for those paths that samePath takes for the same, to look one up among many.
std::wstring pathKey(const std::filesystem::path& path);

} // namespace tessaly::io
