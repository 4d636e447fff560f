#pragma once

#include <windows.h>

namespace tessaly::platform {

/// Whether a standard stream (STD_INPUT_HANDLE and so on) is a console.
inline bool isConsole(DWORD stream)
{
    DWORD mode = 0;
    return ::GetConsoleMode(::GetStdHandle(stream), &mode) != FALSE;
}

} // namespace tessaly::platform
