#include "lib/platform/Random.h"

#include "lib/platform/windows/SystemCall.h"

#include <algorithm>
#include <cstdint>
#include <limits>

// After windows.h.
#include <bcrypt.h>
#include <ntsecapi.h>

namespace tessaly::platform {

ResultCode fillRandomly(void* bytes, std::size_t count)
{
    auto* next = static_cast<std::uint8_t*>(bytes);
    while (count > 0) {
        const std::size_t some = std::min<std::size_t>(count, std::numeric_limits<ULONG>::max());
        const NTSTATUS status =
            ::BCryptGenRandom(nullptr, next, static_cast<ULONG>(some), BCRYPT_USE_SYSTEM_PREFERRED_RNG);
        if (status < 0)
            return systemError(::LsaNtStatusToWinError(status));
        next += some;
        count -= some;
    }
    return {};
}

} // namespace tessaly::platform
