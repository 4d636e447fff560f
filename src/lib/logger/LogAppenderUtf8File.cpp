#include "lib/logger/LogAppenderUtf8File.h"

#include "lib/platform/File.h"
#include "lib/platform/Folders.h"
#include "lib/platform/Path.h"

#include <exception>
#include <filesystem>
#include <mutex>
#include <tuple>
#include <utility>

namespace tessaly::logger {

namespace {

constexpr std::uint32_t WriterValue = 100;
constexpr unsigned WakeUpMilliseconds = 10000;

} // namespace

LogAppenderUtf8File::LogAppenderUtf8File(std::uint64_t id, std::string path)
    : m_id(id), m_path(std::move(path))
{
    std::ignore = m_wakeUp.reset();
    m_writer.setValue(WriterValue);
    m_writer.setRunnable(this);
}

LogAppenderUtf8File::~LogAppenderUtf8File()
{
    stop();
}

ResultCode LogAppenderUtf8File::start()
{
    if (m_writer.isRunning())
        return {};
    setStopped(false);
    // Without the event the writer would spin instead of waiting.
    if (const ResultCode result = m_wakeUp.reset(); !result.ok())
        return result;
    if (const ResultCode result = m_writer.start(); !result.ok())
        return result;
    return pendingLines() > 0 ? m_wakeUp.set() : ResultCode{};
}

void LogAppenderUtf8File::stop()
{
    setStopped(true);
    m_queue.set({});
    std::ignore = m_wakeUp.set();
    m_writer.wait();
    std::lock_guard guard(m_fileLock);
    m_file.reset();
}

void LogAppenderUtf8File::append(std::int64_t time, std::uint32_t processId, std::uint32_t threadId,
                                 std::uint32_t level, std::string_view source, std::string_view message,
                                 std::uint32_t extra)
{
    if (isStopped())
        return;
    internal::LogLine line{time, processId, threadId, level, std::string(source), std::string(message),
                           extra};
    const bool queued = m_queue.with([&line](auto& lines) {
        if (lines.size() >= MaxPendingLines)
            return false;
        lines.push_back(std::move(line));
        return true;
    });
    if (queued)
        std::ignore = m_wakeUp.set();
}

std::size_t LogAppenderUtf8File::pendingLines()
{
    return m_queue.with([](const auto& lines) { return lines.size(); });
}

bool LogAppenderUtf8File::isStopped()
{
    std::lock_guard guard(m_stateLock);
    return m_stopped != 0;
}

void LogAppenderUtf8File::setStopped(bool stopped)
{
    std::lock_guard guard(m_stateLock);
    m_stopped = stopped ? 1 : 0;
}

ResultCode LogAppenderUtf8File::run(std::uint32_t /*value*/, std::uintptr_t /*param*/)
{
    while (!isStopped()) {
        std::ignore = m_wakeUp.wait(WakeUpMilliseconds);
        std::ignore = m_wakeUp.reset();
        try {
            writePending();
        } catch (const std::exception&) {
            // Out of memory costs the batch, not the writer.
        }
    }
    return {};
}

void LogAppenderUtf8File::writePending()
{
    while (!isStopped()) {
        std::vector<internal::LogLine> lines;
        m_queue.with([&lines](auto& pending) { lines.swap(pending); });
        if (lines.empty())
            return;
        write(lines);
    }
}

void LogAppenderUtf8File::write(const std::vector<internal::LogLine>& lines)
{
    std::lock_guard guard(m_fileLock);
    if (!openFile())
        return;
    for (const internal::LogLine& line : lines) {
        m_lineBuffer.clear();
        line.format(m_lineBuffer);
        m_lineBuffer += '\n';
        if (!m_file->write(m_lineBuffer))
            break;
    }
    m_lineBuffer.clear();
}

bool LogAppenderUtf8File::isTooBig() const
{
    const platform::FileStatus there = platform::fileStatus(platform::pathFromNative(m_path));
    return there.kind == platform::FileKind::Regular && there.size > m_maxSize.load();
}

bool LogAppenderUtf8File::openFile()
{
    using platform::LogFile;
    const bool tooBig = isTooBig();
    // Deleted, or started afresh by another process: lines written there would be lost.
    if (m_file && !m_file->isStillAt(m_path))
        m_file.reset();
    if (!m_file) {
        const std::filesystem::path path = platform::pathFromNative(m_path);
        std::ignore = platform::createPrivateFolders(platform::nativeText(path.parent_path()));
        if (tooBig)
            std::ignore = platform::removeFile(path);
        m_file = LogFile::open(m_path, LogFile::Mode::Append);
    } else if (tooBig) {
        m_file.reset();
        m_file = LogFile::open(m_path, LogFile::Mode::Truncate);
    }
    return m_file != nullptr;
}

} // namespace tessaly::logger
