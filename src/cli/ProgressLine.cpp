#include "cli/ProgressLine.h"

#include "lib/platform/Interrupts.h"
#include "lib/platform/Terminal.h"

#include <array>
#include <cstdio>

namespace cli {

namespace {

std::string duration(double seconds)
{
    const auto whole = static_cast<long long>(seconds + 0.5);
    if (whole < 60)
        return std::to_string(whole) + " s";
    if (whole < 3600)
        return std::to_string(whole / 60) + " min " + std::to_string(whole % 60) + " s";
    return std::to_string(whole / 3600) + " h " + std::to_string(whole / 60 % 60) + " min";
}

} // namespace

std::string progressText(std::int64_t processed, double percent, double seconds)
{
    const double speed = seconds > 0 ? static_cast<double>(processed) / seconds : 0;
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%.1f%%  %.1f MB/s", percent, speed / 1e6);
    std::string line = text.data();
    if (percent > 0)
        line += "  " + duration(seconds * (100 - percent) / percent) + " left";
    return line;
}

ProgressLine::ProgressLine() : m_visible(tessaly::platform::isErrorTerminal())
{
}

ProgressLine::~ProgressLine()
{
    show({});
}

void ProgressLine::jobStarted(std::int64_t)
{
    m_start = std::chrono::steady_clock::now();
}

void ProgressLine::jobDerivingKey()
{
    show("Making the key of the password");
}

void ProgressLine::jobProgress(std::int64_t processed, float percent)
{
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - m_start;
    show(progressText(processed, static_cast<double>(percent), elapsed.count()));
}

void ProgressLine::jobFlushing()
{
    show("Waiting for the disk");
}

bool ProgressLine::isJobCancelled()
{
    return tessaly::platform::Interrupts::happened();
}

void ProgressLine::show(const std::string& text)
{
    if (!m_visible || (text.empty() && m_shown == 0))
        return;
    std::string line = text.substr(0, tessaly::platform::errorTerminalWidth() - 1);
    const std::size_t columns = line.size();
    if (columns < m_shown)
        line.append(m_shown - columns, ' ');
    std::fprintf(stderr, "\r%s%s", line.c_str(), text.empty() ? "\r" : "");
    m_shown = columns;
}

} // namespace cli
