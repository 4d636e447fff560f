#pragma once

#include "lib/err/ResultCode.h"
#include "lib/logger/LogAppender.h"
#include "lib/logger/LogLine.h"
#include "lib/platform/LogFile.h"
#include "lib/sync/Locker.h"
#include "lib/sync/SafeData.h"
#include "lib/sync/Signal.h"
#include "lib/thread/IRunnable.h"
#include "lib/thread/Thread.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace tessaly::logger {

/// Writes log lines to a UTF-8 file from a thread of its own. Loggers never wait for the disk: at
/// most 10000 lines wait in memory, more are dropped. Trouble with the file costs lines and is
/// reported to nobody. append: any thread; the rest: the owner's. The file is opened, written and closed
/// under a lock that only the writer takes, and stop once the writer has ended: nobody waits for it.
class LogAppenderUtf8File final : public internal::LogAppender<char>, public thread::IRunnable
{
public:
    static constexpr std::size_t MaxPendingLines = 10000;
    static constexpr std::int64_t DefaultMaxSize = 20000000; ///< bytes

    /// Lines appended before start are written once it has been called.
    LogAppenderUtf8File(std::uint64_t id, std::string path);
    ~LogAppenderUtf8File() override;
    LogAppenderUtf8File(const LogAppenderUtf8File&) = delete;
    LogAppenderUtf8File& operator=(const LogAppenderUtf8File&) = delete;

    std::uint64_t id() const { return m_id; }
    /// A file larger than this many bytes is started afresh before the next batch. Any thread.
    void setMaxSize(std::int64_t bytes) { m_maxSize = bytes; }

    /// Does nothing while the writer runs.
    ResultCode start();
    /// Discards the lines not yet written, waits for the writer and closes the file.
    void stop();
    void append(std::int64_t time, std::uint32_t processId, std::uint32_t threadId, std::uint32_t level,
                std::string_view source, std::string_view message, std::uint32_t extra) override;
    /// Lines that the writer hasn't taken yet. Any thread.
    std::size_t pendingLines();

    /// The writer's body.
    ResultCode run(std::uint32_t value, std::uintptr_t param) override;

private:
    bool isStopped();
    void setStopped(bool stopped);
    bool isTooBig() const;
    bool openFile();
    void write(const std::vector<internal::LogLine>& lines);
    void writePending();

    const std::uint64_t m_id;
    sync::Locker m_stateLock;
    std::uint16_t m_stopped = 0; ///< guarded by m_stateLock
    sync::Signal m_wakeUp;
    thread::Thread m_writer;
    sync::internal::SafeData<sync::Locker, std::vector<internal::LogLine>> m_queue;
    std::unique_ptr<platform::LogFile> m_file; ///< guarded by m_fileLock, as is m_lineBuffer
    sync::Locker m_fileLock;
    const std::string m_path;
    std::atomic<std::int64_t> m_maxSize{DefaultMaxSize};
    std::string m_lineBuffer;
};

} // namespace tessaly::logger
