#include "lib/platform/Random.h"

#include "lib/platform/linux/SystemCall.h"

#include <cstdint>
#include <sys/random.h>

namespace tessaly::platform {

ResultCode fillRandomly(void* bytes, std::size_t count)
{
    auto* next = static_cast<std::uint8_t*>(bytes);
    while (count > 0) {
        const ssize_t got = uninterrupted([&] { return ::getrandom(next, count, 0); });
        if (got <= 0)
            return got < 0 ? err::system(errno) : err::system(EIO);
        next += got;
        count -= static_cast<std::size_t>(got);
    }
    return {};
}

} // namespace tessaly::platform
