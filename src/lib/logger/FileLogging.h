#pragma once

#include "lib/err/ResultCode.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace tessaly::logger {

class LogAppenderUtf8File;

/// The application's hold on logging: the level, and the log file switched on and off. One per
/// process, used by one thread. Its end switches both off.
class FileLogging
{
public:
    using ErrorText = std::function<std::string(ResultCode)>;

    /// quillet.log in the user's state folder; empty for a user without a home, who has none.
    static std::string defaultPath();

    /// Starts with the level Off and no log file. `errorText` words the errors that are logged;
    /// without it they read "category/number".
    explicit FileLogging(std::string path = defaultPath(), ErrorText errorText = {});
    ~FileLogging();
    FileLogging(const FileLogging&) = delete;
    FileLogging& operator=(const FileLogging&) = delete;

    const std::string& path() const { return m_path; }
    /// A Level's number. Set it before the log file, or the file's first line goes unlogged.
    void setLevel(std::uint32_t level);
    void setLogFileUsed(bool used);
    bool isLogFileUsed() const { return m_appender != nullptr; }
    /// Why the log file that was switched on is not in use, as it was logged; else empty.
    const std::string& problem() const { return m_problem; }

private:
    void start();
    void stop();
    void fail(std::string problem);

    const std::string m_path;
    const ErrorText m_errorText;
    std::shared_ptr<LogAppenderUtf8File> m_appender;
    std::string m_problem;
};

} // namespace tessaly::logger
