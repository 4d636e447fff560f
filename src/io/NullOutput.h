#pragma once

#include "io/OStreamBytes.h"

namespace tessaly::io {

/// Takes everything and keeps nothing.
class NullOutput final : public OStreamBytes
{
public:
    [[nodiscard]] std::int64_t write(const void*, std::int64_t count) override { return count; }
    ResultCode lastError() const override { return {}; }
};

} // namespace tessaly::io
