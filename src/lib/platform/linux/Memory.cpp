#include "lib/platform/Memory.h"

#include "lib/err/ErrorCodes.h"

#include <cerrno>
#include <cstring>

namespace tessaly::platform {

void wipe(void* data, std::size_t size) noexcept
{
    if (data != nullptr)
        explicit_bzero(data, size);
}

ResultCode outOfMemory()
{
    return err::system(ENOMEM);
}

} // namespace tessaly::platform
