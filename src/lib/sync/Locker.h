#pragma once

#include "lib/sync/ILockable.h"

#include <mutex>

namespace tessaly::sync {

/// A recursive mutex: the same thread may lock it again, each lock needs its unlock.
/// A failure of the mutex itself is thrown as std::system_error.
/// Scoped use: `std::lock_guard guard(locker);`
class Locker final : public ILockable
{
public:
    Locker() = default;
    Locker(const Locker&) = delete;
    Locker& operator=(const Locker&) = delete;

    void lock() override;
    void unlock() override;
    [[nodiscard]] bool tryLock() override;

private:
    std::recursive_mutex m_mutex;
};

} // namespace tessaly::sync
