#include "lib/logger/LogAppenders.h"

#include "lib/err/ErrorCodes.h"

#include <utility>
#include <vector>

namespace tessaly::logger::internal {

template <class Char>
ResultCode LogAppenders<Char>::add(std::uint64_t id, std::shared_ptr<LogAppender<Char>> appender)
{
    if (!appender)
        return err::library(err::NullArgument);
    const bool added = m_appenders.with([&](auto& appenders) {
        return appenders.try_emplace(id, TAppenderOpt<Char>{std::move(appender), true}).second;
    });
    return added ? ResultCode{} : err::library(err::Busy);
}

template <class Char>
void LogAppenders<Char>::remove(std::uint64_t id)
{
    // Kept until the lock is released: this may be the last reference.
    const auto removed = m_appenders.with([id](auto& appenders) { return appenders.extract(id); });
}

template <class Char>
void LogAppenders<Char>::setEnabled(std::uint64_t id, bool enabled)
{
    m_appenders.with([id, enabled](auto& appenders) {
        if (const auto found = appenders.find(id); found != appenders.end())
            found->second.enabled = enabled;
    });
}

template <class Char>
void LogAppenders<Char>::dispatch(const ILogRecBase<Char>& record)
{
    std::vector<std::shared_ptr<LogAppender<Char>>> enabled;
    m_appenders.with([&enabled](const auto& appenders) {
        for (const auto& [id, entry] : appenders)
            if (entry.enabled)
                enabled.push_back(entry.appender);
    });
    for (const auto& appender : enabled)
        appender->append(record.time(), record.processId(), record.threadId(), record.level(),
                         record.source(), record.message(), record.extra());
}

template class LogAppenders<char>;

} // namespace tessaly::logger::internal
