#pragma once

#include "lib/err/ResultCode.h"

#include <cstdint>

namespace tessaly::thread {

class IRunnable
{
public:
    virtual ~IRunnable() = default;
    /// The job, on the worker thread. `value` is the thread's value, `param` what start was given.
    /// An exception ends the job with (5, 304).
    virtual ResultCode run(std::uint32_t value, std::uintptr_t param) = 0;
};

} // namespace tessaly::thread
