#pragma once

#include "lib/err/ResultCode.h"
#include "lib/logger/ILogRecBase.h"
#include "lib/logger/LogAppender.h"
#include "lib/sync/Locker.h"
#include "lib/sync/SafeData.h"

#include <cstdint>
#include <map>
#include <memory>

namespace tessaly::logger::internal {

/// Ends the last shared reference to an appender; the appender's destructor may wait.
struct TAppenderDeleter
{
    template <class Char>
    void operator()(LogAppender<Char>* appender) const
    {
        delete appender;
    }
};

template <class Char>
struct TAppenderOpt
{
    std::shared_ptr<LogAppender<Char>> appender;
    bool enabled = true;
};

/// The registered appenders by id. Any thread; no appender is called or destroyed under the lock.
template <class Char>
class LogAppenders
{
public:
    /// (5, 5) without an appender, (5, 8) when the id is taken.
    ResultCode add(std::uint64_t id, std::shared_ptr<LogAppender<Char>> appender);
    void remove(std::uint64_t id);
    void setEnabled(std::uint64_t id, bool enabled);
    /// Hands the record to every enabled appender, in the order of their ids.
    void dispatch(const ILogRecBase<Char>& record);

private:
    sync::internal::SafeData<sync::Locker, std::map<std::uint64_t, TAppenderOpt<Char>>> m_appenders;
};

extern template class LogAppenders<char>;

} // namespace tessaly::logger::internal
