#include "lib/platform/SystemMessage.h"

#include "lib/platform/Path.h"

#include <cstdlib>
#include <cstring>
#include <system_error>

namespace tessaly::platform {

namespace {

/// Of a text in the locale's encoding; as it is when it is none.
std::string toUtf8(const std::string& text)
{
    std::wstring wide(text.size(), L'\0');
    const std::size_t length = std::mbstowcs(wide.data(), text.c_str(), wide.size());
    return length > wide.size() ? text : nativePath({wide.data(), length});
}

} // namespace

std::optional<std::string> systemMessage(std::uint32_t errorNumber)
{
    const int number = static_cast<int>(errorNumber);
    if (strerrordesc_np(number) == nullptr)
        return std::nullopt;
    return toUtf8(std::system_category().message(number));
}

} // namespace tessaly::platform
