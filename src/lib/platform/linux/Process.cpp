#include "lib/platform/Process.h"

#include <unistd.h>

namespace tessaly::platform {

std::uint32_t processId()
{
    return static_cast<std::uint32_t>(::getpid());
}

std::uint32_t threadId()
{
    return static_cast<std::uint32_t>(::gettid());
}

} // namespace tessaly::platform
