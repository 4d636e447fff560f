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

private:
    std::atomic<tessaly::ResultCode> m_error = tessaly::ResultCode{};
};

} // namespace cli
