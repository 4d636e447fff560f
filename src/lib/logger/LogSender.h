#pragma once

#include "lib/logger/ILogRecBase.h"
#include "lib/logger/LogAppenders.h"

#include <cstdint>

namespace tessaly::logger::internal {

/// The one way from records to appenders, with the level that filters them. Any thread.
template <class Char>
class LogSender final
{
public:
    /// The process's sender, made on first use with the level Off. The first reference is the
    /// process's own: released, if at all, when no thread can log any more.
    static LogSender* instance();

    /// Both return the new count; at 0 the sender is destroyed and the next use makes another.
    std::uint64_t addRef();
    std::uint64_t release();

    bool isEnabled(std::uint32_t level) const;
    std::uint32_t level() const;
    void setLevel(std::uint32_t level);
    void send(const ILogRecBase<Char>& record);
    LogAppenders<Char>& appenders() { return m_appenders; }

private:
    LogSender() = default;
    ~LogSender() = default;

    std::uint64_t m_references = 1;
    std::uint32_t m_level = 0; ///< guarded by the level lock
    LogAppenders<Char> m_appenders;

    static LogSender* s_instance; ///< guarded by the instance lock, as is the count
};

extern template class LogSender<char>;

} // namespace tessaly::logger::internal
