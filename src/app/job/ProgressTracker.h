#pragma once

#include <cstdint>
#include <optional>

namespace thisapp {

/// Speed and remaining time of a job from its progress reports. The speed is smoothed, so that the
/// remaining time neither jumps with every report nor clings to a slow start.
class ProgressTracker
{
public:
    /// Reports closer together than this many bytes are not worth a sample.
    static constexpr std::int64_t Step = 1024;

    /// A job over `total` bytes starts at `nowMs` on any monotonic clock.
    void reset(std::int64_t total, std::int64_t nowMs);
    void reset() { reset(0, 0); }
    /// More or less is to be done than was thought.
    void setTotal(std::int64_t total) { m_total = total; }
    void update(std::int64_t processed, std::int64_t nowMs);

    float percent() const { return m_percent; }
    /// Since the reset, at the last update.
    std::int64_t elapsedMs() const { return m_lastUpdateMs - m_startMs; }
    std::int64_t total() const { return m_total; }
    /// Nothing before there is a first sample.
    std::optional<double> bytesPerSecond() const { return m_speed; }
    /// Rounded up to whole seconds.
    std::optional<std::int64_t> remainingSeconds() const;

private:
    std::int64_t m_total = 0;
    std::int64_t m_processed = 0;
    std::int64_t m_sampleProcessed = 0;
    std::int64_t m_sampleMs = 0;
    std::int64_t m_startMs = 0;
    std::int64_t m_lastUpdateMs = 0;
    float m_percent = 0;
    std::optional<double> m_speed;
};

} // namespace thisapp
