#pragma once

#include <cstdint>
#include <string_view>

namespace tessaly::logger::internal {

/// What a sender and its appenders see of a record. The texts live as long as the record.
template <class Char>
class ILogRecBase
{
public:
    virtual ~ILogRecBase() = default;
    virtual std::int64_t time() const = 0;
    virtual std::uint32_t processId() const = 0;
    virtual std::uint32_t threadId() const = 0;
    virtual std::uint32_t level() const = 0;
    virtual std::basic_string_view<Char> source() const = 0;
    virtual std::basic_string_view<Char> message() const = 0;
    virtual std::uint32_t extra() const = 0;
    /// Sends what has been streamed in and empties the record for another message.
    virtual void flush() = 0;
};

} // namespace tessaly::logger::internal
