#include "lib/platform/Memory.h"

#include "lib/platform/windows/SystemCall.h"

namespace tessaly::platform {

void wipe(void* data, std::size_t size) noexcept
{
    if (data != nullptr)
        ::SecureZeroMemory(data, size);
}

ResultCode outOfMemory()
{
    return systemError(ERROR_NOT_ENOUGH_MEMORY);
}

} // namespace tessaly::platform
