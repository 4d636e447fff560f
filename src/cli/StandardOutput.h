#pragma once

#include "io/OStreamBytes.h"

#include <atomic>

namespace cli {

/// Standard output as the sink of a job.
class StandardOutput final : public tessaly::io::OStreamBytes
{
public:
    [[nodiscard]] std::int64_t write(const void* buffer, std::int64_t count) override;
    tessaly::ResultCode lastError() const override { return m_error; }
    /// Some bytes are out, and cannot be taken back.
    bool hasWritten() const { return m_hasWritten; }

private:
    std::atomic<tessaly::ResultCode> m_error = tessaly::ResultCode{};
    std::atomic<bool> m_hasWritten = false;
};

} // namespace cli
