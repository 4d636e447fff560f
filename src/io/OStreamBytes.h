#pragma once

#include "lib/err/ResultCode.h"

#include <cstdint>

namespace tessaly::io {

/// A sink of bytes. One writer; lastError may be asked from any thread.
class OStreamBytes
{
public:
    virtual ~OStreamBytes() = default;
    /// Gives the count written; less than asked means that lastError tells why.
    [[nodiscard]] virtual std::int64_t write(const void* buffer, std::int64_t count) = 0;
    virtual ResultCode lastError() const = 0;
};

} // namespace tessaly::io
