#pragma once

#include "lib/err/ErrorCodes.h"
#include "lib/err/ResultCode.h"

#include <cerrno>

namespace tessaly::platform {

/// Success or the system's last error.
inline ResultCode outcome(bool succeeded)
{
    return succeeded ? ResultCode{} : err::system(errno);
}

/// Repeats a system call that a signal interrupted.
template <class Call>
auto uninterrupted(Call call)
{
    auto result = call();
    while (result == -1 && errno == EINTR)
        result = call();
    return result;
}

} // namespace tessaly::platform
