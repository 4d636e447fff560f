#include "lib/platform/Memory.h"

#include <cstring>

namespace tessaly::platform {

void wipe(void* data, std::size_t size) noexcept
{
    if (data != nullptr)
        explicit_bzero(data, size);
}

} // namespace tessaly::platform
