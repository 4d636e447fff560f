#pragma once

#include "lib/err/ErrorCodes.h"
#include "lib/err/ResultCode.h"

#include <cstdint>
#include <utility>
#include <windows.h>

/// Between the system's calls and our result codes, and between its handles and the integers of the
/// platform-neutral headers.
namespace tessaly::platform {

inline ResultCode systemError(DWORD error)
{
    return err::system(static_cast<int>(error));
}

/// Success or the calling thread's last error.
inline ResultCode outcome(BOOL succeeded)
{
    return succeeded ? ResultCode{} : systemError(::GetLastError());
}

/// The system uses the lower half of a handle only, so that 32-bit programs can share it; sign extension
/// gives it back ("Interprocess Communication Between 32-bit and 64-bit Applications").
inline HANDLE toHandle(int number)
{
    return reinterpret_cast<HANDLE>(static_cast<std::intptr_t>(number));
}

/// -1 for INVALID_HANDLE_VALUE.
inline int toNumber(HANDLE handle)
{
    return static_cast<int>(reinterpret_cast<std::intptr_t>(handle));
}

/// A handle that closes itself; empty for INVALID_HANDLE_VALUE and for null.
class OwnHandle
{
public:
    explicit OwnHandle(HANDLE handle = nullptr) : m_handle(handle == INVALID_HANDLE_VALUE ? nullptr : handle)
    {
    }
    ~OwnHandle()
    {
        if (m_handle)
            ::CloseHandle(m_handle);
    }
    OwnHandle(OwnHandle&& other) noexcept : m_handle(std::exchange(other.m_handle, nullptr)) {}
    OwnHandle& operator=(OwnHandle&& other) noexcept
    {
        std::swap(m_handle, other.m_handle);
        return *this;
    }

    explicit operator bool() const { return m_handle != nullptr; }
    HANDLE get() const { return m_handle; }
    HANDLE release() { return std::exchange(m_handle, nullptr); }

private:
    HANDLE m_handle;
};

} // namespace tessaly::platform
