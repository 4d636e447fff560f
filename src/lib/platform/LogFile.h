#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace tessaly::platform {

/// A file that several processes may append lines to: each write goes to the end in one piece, and on a
/// line of its own even after one that failed half-way. A file that this creates is the user's alone (0600).
/// Closed by the destructor.
class LogFile
{
public:
    enum class Mode { Append, Truncate };

    /// Null when the file can't be opened.
    static std::unique_ptr<LogFile> open(const std::string& path, Mode mode);
    ~LogFile();
    LogFile(const LogFile&) = delete;
    LogFile& operator=(const LogFile&) = delete;

    /// Writes one line, its end included; false when not all of it could be written.
    [[nodiscard]] bool write(const std::string& line);
    /// False once someone has deleted, renamed or replaced the file.
    bool isStillAt(const std::string& path) const;

private:
    explicit LogFile(int handle) : m_handle(handle) {}

    int m_handle;
    bool m_isTorn = false; ///< the file ends in the middle of a line
};

} // namespace tessaly::platform
