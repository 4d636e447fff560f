#pragma once

#include <cstdint>
#include <string_view>

namespace tessaly::logger::internal {

/// A place that log lines go to. Called on whichever thread logs, so it must not wait.
template <class Char>
class LogAppender
{
public:
    virtual ~LogAppender() = default;
    /// `time` is local file time. The texts are the caller's: copy what outlives the call.
    virtual void append(std::int64_t time, std::uint32_t processId, std::uint32_t threadId,
                        std::uint32_t level, std::basic_string_view<Char> source,
                        std::basic_string_view<Char> message, std::uint32_t extra) = 0;
    /// Always true.
    virtual bool isAvailable() const { return true; }
};

} // namespace tessaly::logger::internal
