#include "lib/platform/TextFile.h"

#include "lib/err/ErrorCodes.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace tessaly::platform {

namespace {

/// The path in UTF-8; empty when it has none.
std::string nativePath(const std::wstring& path)
{
    try {
        return std::filesystem::path(path).string();
    } catch (const std::exception&) {
        return {};
    }
}

} // namespace

ResultCode TextFile::open(const std::wstring& path)
{
    close();
    // O_NONBLOCK: a FIFO without a writer opens at once, to be refused below.
    const int handle = ::open(nativePath(path).c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    if (handle == -1)
        return err::system(errno);
    m_handle = handle;

    struct stat info = {};
    ResultCode result;
    if (::fstat(handle, &info) != 0)
        result = err::system(errno);
    else if (S_ISDIR(info.st_mode))
        result = err::system(EISDIR);
    else if (!S_ISREG(info.st_mode))
        result = err::library(err::OpenFileFailed);
    else
        m_size = static_cast<std::uint64_t>(info.st_size);

    if (!result.ok())
        close();
    return result;
}

ResultCode TextFile::read(char* buffer, std::size_t size, std::size_t& count)
{
    count = 0;
    ssize_t result = 0;
    do
        result = ::read(static_cast<int>(m_handle), buffer, size);
    while (result == -1 && errno == EINTR);
    if (result == -1)
        return err::system(errno);
    count = static_cast<std::size_t>(result);
    return {};
}

void TextFile::close()
{
    if (isOpen())
        ::close(static_cast<int>(m_handle));
    m_handle = -1;
    m_size = 0;
}

} // namespace tessaly::platform
