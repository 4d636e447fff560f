#include "lib/platform/LogFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessaly::platform {

namespace {

/// Whether a file has a last line without an end, as a full disk or a crash leaves one.
bool endsInLine(const std::string& path)
{
    struct stat info = {};
    if (::stat(path.c_str(), &info) != 0 || !S_ISREG(info.st_mode) || info.st_size == 0)
        return false;
    const int handle = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    if (handle < 0)
        return false;
    char last = '\n';
    const bool read = ::pread(handle, &last, 1, info.st_size - 1) == 1;
    ::close(handle);
    return read && last != '\n';
}

} // namespace

std::unique_ptr<LogFile> LogFile::open(const std::string& path, Mode mode)
{
    // Non-blocking, so that a FIFO without a reader can't hold up the writer and with it the exit.
    int flags = O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | O_NOCTTY | O_NONBLOCK;
    if (mode == Mode::Truncate)
        flags |= O_TRUNC;
    const int handle = ::open(path.c_str(), flags, S_IRUSR | S_IWUSR);
    if (handle < 0)
        return nullptr;
    std::unique_ptr<LogFile> file(new LogFile(handle));
    file->m_isTorn = endsInLine(path);
    return file;
}

LogFile::~LogFile()
{
    ::close(m_handle);
}

bool LogFile::write(const std::string& line)
{
    const std::string separated = m_isTorn ? '\n' + line : std::string();
    std::string_view bytes = m_isTorn ? separated : line;
    while (!bytes.empty()) {
        const ssize_t written = ::write(m_handle, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
        m_isTorn = !bytes.empty();
    }
    return true;
}

bool LogFile::isStillAt(const std::string& path) const
{
    struct stat opened = {};
    struct stat named = {};
    return ::fstat(m_handle, &opened) == 0 && ::stat(path.c_str(), &named) == 0 &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

} // namespace tessaly::platform
