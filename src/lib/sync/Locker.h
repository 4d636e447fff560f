#pragma once

#include "lib/sync/ILockable.h"

#include <atomic>
#include <cstddef>
#include <mutex>
#include <thread>

namespace tessaly::sync {

/// A recursive mutex: the same thread may lock it again, each lock needs its unlock. A failure of the
/// mutex itself, and an unlock by a thread that does not hold it, throw std::system_error.
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
    bool isMine() const;
    void enter();

    // Not std::recursive_mutex: what its unlock does for a thread that does not hold it is undefined.
    std::mutex m_mutex;
    std::atomic<std::thread::id> m_owner; ///< written by the holder of m_mutex only
    std::size_t m_depth = 0;              ///< guarded by m_mutex
};

} // namespace tessaly::sync
