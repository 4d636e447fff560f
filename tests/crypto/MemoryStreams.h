#pragma once

#include "io/IStreamBytes.h"
#include "io/OStreamBytes.h"
#include "lib/err/ErrorCodes.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <functional>
#include <limits>
#include <utility>
#include <vector>

namespace test {

using Bytes = std::vector<std::uint8_t>;

/// What a memory stream reports when it is told to fail.
inline constexpr tessaly::ResultCode StreamFault = tessaly::err::system(EIO);

/// How a stream is to misbehave. Calls count from 1.
struct Faults
{
    int failAtCall = 0;
    std::int64_t mostAtOnce = std::numeric_limits<std::int64_t>::max();
    std::int64_t endsAt =
        std::numeric_limits<std::int64_t>::max(); ///< success without bytes, as of a file that shrank
    std::int64_t miscount = 0;                    ///< added to the count that a call gives
    std::function<void(int)> onCall = [](int) {};
};

class MemoryInput final : public tessaly::io::IStreamBytes
{
public:
    MemoryInput(Bytes bytes, Faults faults = {}) : m_bytes(std::move(bytes)), m_faults(std::move(faults)) {}

    bool isAtStart() const override { return m_position == 0; }
    bool isAtEnd() const override { return m_position >= size(); }
    std::int64_t size() const override { return std::ssize(m_bytes); }
    tessaly::ResultCode lastError() const override { return m_error; }

    [[nodiscard]] bool read(void* buffer, std::int64_t count, std::int64_t& countRead) override
    {
        m_faults.onCall(++m_calls);
        m_error = m_calls == m_faults.failAtCall ? StreamFault : tessaly::ResultCode{};
        const std::int64_t left = std::min(size(), m_faults.endsAt) - m_position;
        countRead = 0;
        if (!m_error.ok() || isAtEnd())
            return false;
        countRead = std::max<std::int64_t>(0, std::min({count, left, m_faults.mostAtOnce}));
        std::copy_n(m_bytes.begin() + m_position, countRead, static_cast<std::uint8_t*>(buffer));
        m_position += countRead;
        countRead += m_faults.miscount;
        return true;
    }

private:
    Bytes m_bytes;
    Faults m_faults;
    std::int64_t m_position = 0;
    int m_calls = 0;
    tessaly::ResultCode m_error;
};

class MemoryOutput final : public tessaly::io::OStreamBytes
{
public:
    explicit MemoryOutput(Faults faults = {}) : m_faults(std::move(faults)) {}

    Bytes bytes;
    int calls = 0;

    tessaly::ResultCode lastError() const override { return m_error; }

    [[nodiscard]] std::int64_t write(const void* buffer, std::int64_t count) override
    {
        m_faults.onCall(++calls);
        m_error = calls == m_faults.failAtCall ? StreamFault : tessaly::ResultCode{};
        const std::int64_t taken = m_error.ok() ? std::min(count, m_faults.mostAtOnce) : 0;
        const auto* begin = static_cast<const std::uint8_t*>(buffer);
        bytes.insert(bytes.end(), begin, begin + taken);
        return taken + m_faults.miscount;
    }

private:
    Faults m_faults;
    tessaly::ResultCode m_error;
};

} // namespace test
