#pragma once

#include <windows.h>

namespace tessaly::platform {

/// A function of a library that is loaded in every process; null when this system's has none of that name.
/// For those that the compiler's headers do not declare, or that stand behind one of ours.
template <class Function>
Function* systemFunction(const wchar_t* library, const char* name) noexcept
{
    const FARPROC found = ::GetProcAddress(::GetModuleHandleW(library), name);
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(found));
}

} // namespace tessaly::platform
