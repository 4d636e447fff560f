#pragma once

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
    NotRegular,   ///< a directory, device, FIFO, socket or dangling link
};

InputCheck checkInput(const std::wstring& input);

/// What stands where the output is to go. Never blocks and changes nothing.
OutputCheck checkOutput(const std::wstring& input, const std::wstring& output);

/// Absolute paths without "." and "..", compared without regard to letter case.
bool samePath(const std::wstring& first, const std::wstring& second);

} // namespace tessaly::io
