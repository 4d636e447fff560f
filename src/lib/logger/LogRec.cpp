#include "lib/logger/LogRec.h"

#include "lib/logger/Clock.h"
#include "lib/platform/Process.h"

#include <exception>

namespace tessaly::logger::internal {

template <class Char>
LogRec<Char>::LogRec(LogSender<Char>* sender, std::uint32_t level, std::basic_string_view<Char> source)
    : m_sender(sender),
      m_processId(platform::processId()),
      m_threadId(platform::threadId()),
      m_level(level),
      m_source(source)
{
    if (m_sender != nullptr)
        m_sender->addRef();
}

template <class Char>
LogRec<Char>::~LogRec()
{
    if (m_sender == nullptr)
        return;
    try {
        flush();
    } catch (const std::exception&) {
        // Out of memory costs this line; a destructor has nobody to tell.
    }
    m_sender->release();
}

template <class Char>
bool LogRec<Char>::isEnabled() const
{
    return m_sender != nullptr && m_sender->isEnabled(m_level);
}

template <class Char>
void LogRec<Char>::flush()
{
    if (m_sender == nullptr)
        return;
    this->m_stream.flush();
    if (isEnabled()) {
        m_time = now();
        m_message = this->m_stream.str();
        m_sender->send(*this);
    }
    this->m_stream.str({});
    m_message.clear();
}

template class LogRec<char>;

} // namespace tessaly::logger::internal
