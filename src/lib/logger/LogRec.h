#pragma once

#include "lib/logger/Level.h"
#include "lib/logger/LogRec_Impl.h"
#include "lib/logger/LogSender.h"

#include <string>

namespace tessaly::logger::internal {

/// One message: stream text into it, and it is sent when it goes out of scope. One thread's.
template <class Char>
class LogRec final : public LogRec_Impl<Char>
{
public:
    /// Without a sender the record goes nowhere.
    explicit LogRec(LogSender<Char>* sender, std::uint32_t level = Error,
                    std::basic_string_view<Char> source = {});
    ~LogRec() override;
    LogRec(const LogRec&) = delete;
    LogRec& operator=(const LogRec&) = delete;

    std::int64_t time() const override { return m_time; }
    std::uint32_t processId() const override { return m_processId; }
    std::uint32_t threadId() const override { return m_threadId; }
    std::uint32_t level() const override { return m_level; }
    std::basic_string_view<Char> source() const override { return m_source; }
    std::basic_string_view<Char> message() const override { return m_message; }
    std::uint32_t extra() const override { return m_extra; }
    void flush() override;

private:
    bool isEnabled() const override;

    LogSender<Char>* m_sender;
    std::int64_t m_time = 0;
    std::uint32_t m_processId;
    std::uint32_t m_threadId;
    std::uint32_t m_level;
    std::basic_string<Char> m_source;
    std::basic_string<Char> m_message;
    std::uint32_t m_extra = 0;
};

extern template class LogRec<char>;

} // namespace tessaly::logger::internal
