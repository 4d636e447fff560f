#pragma once

namespace tessaly::sync {

class ILockable
{
public:
    virtual ~ILockable() = default;
    virtual void lock() = 0;
    virtual void unlock() = 0;
    [[nodiscard]] virtual bool tryLock() = 0;
};

} // namespace tessaly::sync
