#pragma once

namespace tessaly::sync {

/// Held by one thread at a time. Also a BasicLockable, so std::lock_guard takes it.
class ILockable
{
public:
    virtual ~ILockable() = default;
    virtual void lock() = 0;
    virtual void unlock() = 0;
    /// False when another thread holds it; never waits.
    [[nodiscard]] virtual bool tryLock() = 0;
};

} // namespace tessaly::sync
