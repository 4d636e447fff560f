#include "lib/platform/SystemMessage.h"

#include "lib/platform/Path.h"

#include <string_view>
#include <windows.h>

namespace tessaly::platform {

std::optional<std::string> systemMessage(std::uint32_t errorNumber)
{
    LPWSTR text = nullptr;
    const DWORD flags = FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM |
                        FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK; // without line ends
    const DWORD length =
        ::FormatMessageW(flags, nullptr, errorNumber, 0, reinterpret_cast<LPWSTR>(&text), 0, nullptr);
    if (length == 0)
        return std::nullopt;
    std::wstring message(text, length);
    ::LocalFree(text);
    while (!message.empty() && std::wstring_view(L"\r\n .").find(message.back()) != std::wstring_view::npos)
        message.pop_back(); // our words go on behind it
    return nativePath(message);
}

} // namespace tessaly::platform
