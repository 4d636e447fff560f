#include "lib/platform/SystemMessage.h"

#include "lib/platform/Path.h"

#include <windows.h>

namespace tessaly::platform {

std::optional<std::string> systemMessage(std::uint32_t errorNumber)
{
    LPWSTR text = nullptr;
    const DWORD flags =
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS;
    const DWORD length =
        ::FormatMessageW(flags, nullptr, errorNumber, 0, reinterpret_cast<LPWSTR>(&text), 0, nullptr);
    if (length == 0)
        return std::nullopt;
    std::wstring message(text, length);
    ::LocalFree(text);
    while (message.ends_with(L'\n') || message.ends_with(L'\r') || message.ends_with(L' '))
        message.pop_back();
    return nativePath(message);
}

} // namespace tessaly::platform
