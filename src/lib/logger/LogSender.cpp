#include "lib/logger/LogSender.h"

#include "lib/logger/Level.h"
#include "lib/sync/Locker.h"

#include <mutex>

namespace tessaly::logger::internal {

namespace {

/// Both locks live for the whole process, so that a static object's destructor may still log.
sync::Locker& instanceLock()
{
    static auto& locker = *new sync::Locker;
    return locker;
}

sync::Locker& levelLock()
{
    static auto& locker = *new sync::Locker;
    return locker;
}

} // namespace

template <class Char>
LogSender<Char>* LogSender<Char>::s_instance = nullptr;

template <class Char>
LogSender<Char>* LogSender<Char>::instance()
{
    std::lock_guard guard(instanceLock());
    if (s_instance == nullptr)
        s_instance = new LogSender;
    return s_instance;
}

template <class Char>
std::uint64_t LogSender<Char>::addRef()
{
    std::lock_guard guard(instanceLock());
    return ++m_references;
}

template <class Char>
std::uint64_t LogSender<Char>::release()
{
    {
        std::lock_guard guard(instanceLock());
        if (m_references > 0 && --m_references > 0)
            return m_references;
        s_instance = nullptr;
    }
    delete this; // its appenders may wait for their writers
    return 0;
}

template <class Char>
bool LogSender<Char>::isEnabled(std::uint32_t level) const
{
    std::lock_guard guard(levelLock());
    return m_level != Off && level != Off && level <= m_level;
}

template <class Char>
std::uint32_t LogSender<Char>::level() const
{
    std::lock_guard guard(levelLock());
    return m_level;
}

template <class Char>
void LogSender<Char>::setLevel(std::uint32_t level)
{
    std::lock_guard guard(levelLock());
    m_level = level;
}

template <class Char>
void LogSender<Char>::send(const ILogRecBase<Char>& record)
{
    m_appenders.dispatch(record);
}

template class LogSender<char>;

} // namespace tessaly::logger::internal
