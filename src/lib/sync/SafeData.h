#pragma once

#include "lib/sync/ILockable.h"

#include <mutex>
#include <utility>

namespace tessaly::sync::internal {

/// A value with the lock that guards it. Hold the lock only to copy in or out, never across a
/// dialog or a system call; get, set and with do that in one step.
template <class TLocker, class T>
class SafeData final : public ILockable
{
public:
    SafeData() = default;
    explicit SafeData(T value) : m_value(std::move(value)) {}
    SafeData(const SafeData&) = delete;
    SafeData& operator=(const SafeData&) = delete;

    void lock() override { m_locker.lock(); }
    void unlock() override { m_locker.unlock(); }
    [[nodiscard]] bool tryLock() override { return m_locker.tryLock(); }

    /// The value itself; only between lock and unlock.
    T& value() { return m_value; }

    T get() const
    {
        std::lock_guard guard(m_locker);
        return m_value;
    }

    /// The old value is destroyed outside the lock.
    void set(T value)
    {
        std::lock_guard guard(m_locker);
        std::swap(m_value, value);
    }

    /// Calls action(value) under the lock and gives its result.
    template <class Action>
    decltype(auto) with(Action&& action)
    {
        std::lock_guard guard(m_locker);
        return std::forward<Action>(action)(m_value);
    }

private:
    mutable TLocker m_locker;
    T m_value{};
};

} // namespace tessaly::sync::internal
