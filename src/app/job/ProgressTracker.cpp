#include "app/job/ProgressTracker.h"

#include <algorithm>
#include <cmath>

namespace thisapp {

namespace {

/// After this long a change of speed shows to about two thirds.
constexpr double SmoothingSeconds = 3.0;

} // namespace

void ProgressTracker::reset(std::int64_t total, std::int64_t nowMs)
{
    *this = {};
    m_total = total;
    m_startMs = m_sampleMs = m_lastUpdateMs = nowMs;
}

void ProgressTracker::update(std::int64_t processed, std::int64_t nowMs)
{
    m_processed = std::clamp<std::int64_t>(processed, 0, std::max<std::int64_t>(m_total, 0));
    m_lastUpdateMs = nowMs;
    m_percent =
        m_total > 0
            ? static_cast<float>(100.0 * static_cast<double>(m_processed) / static_cast<double>(m_total))
            : 0.0F;

    m_sampleProcessed = std::min(m_sampleProcessed, m_processed); // a file that failed counts no longer
    const std::int64_t bytes = m_processed - m_sampleProcessed;
    const double seconds = static_cast<double>(nowMs - m_sampleMs) / 1000.0;
    if (bytes < Step || seconds <= 0)
        return;
    const double sample = static_cast<double>(bytes) / seconds;
    const double weight = 1.0 - std::exp(-seconds / SmoothingSeconds);
    m_speed = m_speed ? *m_speed + weight * (sample - *m_speed) : sample;
    m_sampleProcessed = m_processed;
    m_sampleMs = nowMs;
}

std::optional<std::int64_t> ProgressTracker::remainingSeconds() const
{
    if (!m_speed || *m_speed <= 0)
        return std::nullopt;
    return static_cast<std::int64_t>(std::ceil(static_cast<double>(m_total - m_processed) / *m_speed));
}

} // namespace thisapp
