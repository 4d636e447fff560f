#pragma once

#include "lib/err/ResultCode.h"

#include <cstdint>

namespace tessaly::io {

/// A source of bytes of known size. One reader; the queries may come from any thread.
class IStreamBytes
{
public:
    virtual ~IStreamBytes() = default;
    virtual bool isAtStart() const = 0;
    virtual bool isAtEnd() const = 0;
    /// Reads up to `count` bytes. A count below 1 is success with nothing read; a read at the end
    /// fails without an error; every other failure stores one.
    [[nodiscard]] virtual bool read(void* buffer, std::int64_t count, std::int64_t& countRead) = 0;
    /// In bytes, as found when the stream was opened.
    virtual std::int64_t size() const = 0;
    virtual ResultCode lastError() const = 0;
};

} // namespace tessaly::io
