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

/// The ways in which a stream can misbehave. Calls count from 1.
struct StreamFaults
{
    int failAtCall = 0; ///< 0: never
    std::int64_t mostAtOnce = std::numeric_limits<std::int64_t>::max();
    std::function<void(int)> onCall; ///< runs first, with the call's number
};

class MemoryInput final : public tessaly::io::IStreamBytes
{
public:
    explicit MemoryInput(Bytes bytes) : m_bytes(std::move(bytes)) {}

    StreamFaults faults;
    std::int64_t shrinksTo = std::numeric_limits<std::int64_t>::max(); ///< while size stays
    int calls = 0;

    bool isAtStart() const override { return m_position == 0; }
    bool isAtEnd() const override { return m_position >= size(); }
    std::int64_t size() const override { return std::ssize(m_bytes); }
    tessaly::ResultCode lastError() const override { return m_error; }

    [[nodiscard]] bool read(void* buffer, std::int64_t count, std::int64_t& countRead) override
    {
        ++calls;
        if (faults.onCall)
            faults.onCall(calls);
        countRead = 0;
        m_error = calls == faults.failAtCall ? StreamFault : tessaly::ResultCode{};
        const std::int64_t left = std::min(size(), shrinksTo) - m_position;
        if (!m_error.ok() || left < 1)
            return false;
        countRead = std::min({count, left, faults.mostAtOnce});
        std::copy_n(m_bytes.begin() + m_position, countRead, static_cast<std::uint8_t*>(buffer));
        m_position += countRead;
        return true;
    }

private:
    Bytes m_bytes;
    std::int64_t m_position = 0;
    tessaly::ResultCode m_error;
};

class MemoryOutput final : public tessaly::io::OStreamBytes
{
public:
    Bytes bytes;
    StreamFaults faults;
    int calls = 0;

    tessaly::ResultCode lastError() const override { return m_error; }

    [[nodiscard]] std::int64_t write(const void* buffer, std::int64_t count) override
    {
        ++calls;
        if (faults.onCall)
            faults.onCall(calls);
        m_error = calls == faults.failAtCall ? StreamFault : tessaly::ResultCode{};
        if (!m_error.ok())
            return 0;
        const auto* begin = static_cast<const std::uint8_t*>(buffer);
        const std::int64_t taken = std::min(count, faults.mostAtOnce);
        bytes.insert(bytes.end(), begin, begin + taken);
        return taken;
    }

private:
    tessaly::ResultCode m_error;
};

} // namespace test
