#include "lib/sync/Locker.h"

#include <system_error>

namespace tessaly::sync {

void Locker::lock()
{
    if (!isMine())
        m_mutex.lock();
    enter();
}

void Locker::unlock()
{
    if (!isMine())
        throw std::system_error(std::make_error_code(std::errc::operation_not_permitted));
    if (--m_depth > 0)
        return;
    m_owner = std::thread::id();
    m_mutex.unlock();
}

bool Locker::tryLock()
{
    if (!isMine() && !m_mutex.try_lock())
        return false;
    enter();
    return true;
}

bool Locker::isMine() const
{
    return m_owner == std::this_thread::get_id();
}

void Locker::enter()
{
    m_owner = std::this_thread::get_id();
    ++m_depth;
}

} // namespace tessaly::sync
