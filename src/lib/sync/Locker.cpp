#include "lib/sync/Locker.h"

namespace tessaly::sync {

void Locker::lock()
{
    m_mutex.lock();
}

void Locker::unlock()
{
    m_mutex.unlock();
}

bool Locker::tryLock()
{
    return m_mutex.try_lock();
}

} // namespace tessaly::sync
