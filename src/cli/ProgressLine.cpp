#include "cli/ProgressLine.h"

#include "lib/logger/LogText.h"
#include "lib/platform/Interrupts.h"
#include "lib/platform/Path.h"
#include "lib/platform/Terminal.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

namespace cli {

namespace {

constexpr std::size_t LongestName = 32; ///< in bytes

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

std::string progressLabel(std::size_t number, std::size_t count, const std::string& name)
{
    using namespace tessaly::platform;
    std::string shown;
    tessaly::logger::appendOneLine(shown, nativeText(pathFromNative(name).filename()));
    if (shown.size() > LongestName) {
        const auto isWithinLetter = [&](std::size_t at) { return (shown[at] & 0xC0) == 0x80; };
        std::size_t end = LongestName / 2;
        std::size_t begin = shown.size() - LongestName / 2;
        while (end > 0 && isWithinLetter(end))
            --end;
        while (begin < shown.size() && isWithinLetter(begin))
            ++begin;
        shown.replace(end, begin - end, "...");
    }
    return std::to_string(number) + '/' + std::to_string(count) + ' ' + shown;
}

ProgressLine::ProgressLine(std::string label, bool isWanted)
    : m_label(std::move(label)), m_visible(isWanted && tessaly::platform::isErrorTerminal())
{
}

ProgressLine::~ProgressLine()
{
    show({});
}

void ProgressLine::jobStarted(std::int64_t)
{
    m_start = std::chrono::steady_clock::now();
    show({}); // the key is made
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
    std::string line = m_label.empty() || text.empty() ? text : m_label + "  " + text;
    line.resize(std::min<std::size_t>(line.size(), tessaly::platform::errorTerminalWidth() - 1));
    const std::size_t columns = line.size();
    if (columns < m_shown)
        line.append(m_shown - columns, ' ');
    std::fprintf(stderr, "\r%s%s", line.c_str(), text.empty() ? "\r" : "");
    m_shown = columns;
}

} // namespace cli
