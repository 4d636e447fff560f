#include "lib/platform/SystemMessage.h"

#include <cstring>
#include <system_error>

namespace tessaly::platform {

std::optional<std::string> systemMessage(std::uint32_t errorNumber)
{
    const int number = static_cast<int>(errorNumber);
    if (strerrordesc_np(number) == nullptr)
        return std::nullopt;
    return std::system_category().message(number);
}

} // namespace tessaly::platform
