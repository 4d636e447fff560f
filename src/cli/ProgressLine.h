#pragma once

#include "crypto/job/FileJob.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>

namespace cli {

/// Percent, speed and remaining time, behind the label if there is one, rewritten in place on standard error
/// when that is a terminal; nothing otherwise.
class ProgressLine final : public tessaly::crypto::IFileJobObserver
{
public:
    ProgressLine(std::string label, bool isWanted);
    ~ProgressLine() override;

    void jobStarted(std::int64_t total) override;
    void jobDerivingKey() override;
    void jobProgress(std::int64_t processed, float percent) override;
    void jobFlushing() override;
    bool isJobCancelled() override;

private:
    void show(const std::string& text);

    const std::string m_label;
    const bool m_visible;
    std::size_t m_shown = 0; ///< columns to blank
    std::chrono::steady_clock::time_point m_start;
};

/// "2/11 report.txt", with a long name shortened in the middle.
std::string progressLabel(std::size_t number, std::size_t count, const std::string& name);

/// For example "41.3%  512.0 MB/s  3 s left".
std::string progressText(std::int64_t processed, double percent, double seconds);

} // namespace cli
