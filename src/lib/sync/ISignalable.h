#pragma once

#include "lib/err/ResultCode.h"

namespace tessaly::sync {

/// A manual-reset event: once set it stays set, and everybody passes, until reset. Who waits at the
/// moment of the set passes even if the reset follows at once.
class ISignalable
{
public:
    virtual ~ISignalable() = default;
    virtual bool isValid() const = 0;
    virtual ResultCode set() = 0;
    virtual ResultCode reset() = 0;
    /// True only when the event was set within the time.
    [[nodiscard]] virtual bool wait(unsigned milliseconds) = 0;
    /// Waits without limit; false only when there is no event to wait for.
    [[nodiscard]] virtual bool wait() = 0;
};

} // namespace tessaly::sync
