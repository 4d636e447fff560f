#pragma once

#include "fuzz/support/Choices.h"
#include "io/IRewindableBytes.h"
#include "io/OStreamBytes.h"
#include "lib/err/ErrorCodes.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <limits>
#include <optional>

namespace fuzz {

/// Where a stream ends before its time, and how it does it.
struct StreamFault
{
    std::int64_t at = std::numeric_limits<std::int64_t>::max();
    bool isSilent = false; ///< as of a file that has become shorter: without an error

    static StreamFault choose(Choices& choices, std::size_t size)
    {
        if (!choices.seldom(8))
            return {};
        return {static_cast<std::int64_t>(choices.upTo(size)), choices.ConsumeBool()};
    }
};

/// Bytes in memory, read in pieces of at most so many.
class ByteSource final : public tessaly::io::IRewindableBytes
{
public:
    /// Now and then a source that gives less than is asked for.
    ByteSource(Choices& choices, const Bytes& bytes)
        : ByteSource(bytes,
                     choices.seldom(4) ? 1 + std::ssize(bytes) / (1 + choices.upTo(40)) : std::ssize(bytes),
                     StreamFault::choose(choices, bytes.size()))
    {
    }
    explicit ByteSource(const Bytes& bytes,
                        std::int64_t mostAtOnce = std::numeric_limits<std::int64_t>::max(),
                        StreamFault fault = {})
        : m_bytes(bytes), m_mostAtOnce(mostAtOnce), m_fault(fault)
    {
    }

    bool hasFailed() const { return m_hasFailed; }

    bool isAtStart() const override { return m_position == 0; }
    bool isAtEnd() const override { return m_position >= size(); }
    std::int64_t size() const override { return std::ssize(m_bytes); }
    tessaly::ResultCode lastError() const override { return m_error; }
    tessaly::ResultCode rewind() override
    {
        m_position = 0;
        return {};
    }

    [[nodiscard]] bool read(void* buffer, std::int64_t count, std::int64_t& countRead) override
    {
        countRead = 0;
        if (count < 1)
            return true;
        if (isAtEnd())
            return false;
        countRead = std::min({count, std::min(size(), m_fault.at) - m_position, m_mostAtOnce});
        countRead = std::max<std::int64_t>(countRead, 0);
        std::copy_n(m_bytes.begin() + m_position, countRead, static_cast<std::uint8_t*>(buffer));
        m_position += countRead;
        m_hasFailed |= countRead == 0;
        if (countRead == 0 && !m_fault.isSilent)
            m_error = tessaly::err::system(EIO);
        return countRead > 0 || m_fault.isSilent;
    }

private:
    const Bytes& m_bytes;
    const std::int64_t m_mostAtOnce;
    const StreamFault m_fault;
    std::int64_t m_position = 0;
    bool m_hasFailed = false;
    tessaly::ResultCode m_error;
};

class ByteSink final : public tessaly::io::OStreamBytes
{
public:
    explicit ByteSink(StreamFault fault = {}) : m_fault(fault) {}

    Bytes bytes;

    bool hasFailed() const { return m_hasFailed; }

    tessaly::ResultCode lastError() const override { return m_error; }
    [[nodiscard]] std::int64_t write(const void* buffer, std::int64_t count) override
    {
        const std::int64_t taken = std::clamp<std::int64_t>(m_fault.at - std::ssize(bytes), 0, count);
        const auto* begin = static_cast<const std::uint8_t*>(buffer);
        bytes.insert(bytes.end(), begin, begin + taken);
        m_hasFailed |= taken < count;
        if (taken < count)
            m_error = tessaly::err::system(ENOSPC);
        return taken;
    }

private:
    const StreamFault m_fault;
    bool m_hasFailed = false;
    tessaly::ResultCode m_error;
};

} // namespace fuzz
