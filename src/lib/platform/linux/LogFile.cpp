#include "lib/platform/LogFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessaly::platform {

std::unique_ptr<LogFile> LogFile::open(const std::string& path, Mode mode)
{
    // Non-blocking, so that a FIFO without a reader can't hold up the writer and with it the exit.
    int flags = O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | O_NOCTTY | O_NONBLOCK;
    if (mode == Mode::Truncate)
        flags |= O_TRUNC;
    const int handle = ::open(path.c_str(), flags, S_IRUSR | S_IWUSR);
    return handle < 0 ? nullptr : std::unique_ptr<LogFile>(new LogFile(handle));
}

LogFile::~LogFile()
{
    ::close(m_handle);
}

bool LogFile::write(std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(m_handle, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

bool LogFile::isStillAt(const std::string& path) const
{
    struct stat opened
    {
    };
    struct stat named
    {
    };
    return ::fstat(m_handle, &opened) == 0 && ::stat(path.c_str(), &named) == 0 &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

} // namespace tessaly::platform
