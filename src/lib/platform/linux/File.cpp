#include "lib/platform/File.h"

#include "lib/err/ErrorCodes.h"
#include "lib/platform/Path.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace tessaly::platform {

namespace {

/// Success or the system's last error.
ResultCode outcome(bool succeeded)
{
    return succeeded ? ResultCode{} : err::system(errno);
}

/// Repeats a system call that a signal interrupted.
template <class Call>
auto uninterrupted(Call call)
{
    auto result = call();
    while (result == -1 && errno == EINTR)
        result = call();
    return result;
}

FileStatus fromStat(const struct stat& info)
{
    FileStatus status;
    status.kind = S_ISREG(info.st_mode)   ? FileKind::Regular
                  : S_ISDIR(info.st_mode) ? FileKind::Directory
                                          : FileKind::Other;
    status.device = info.st_dev;
    status.inode = info.st_ino;
    status.hardLinks = info.st_nlink;
    status.size = info.st_size;
    // Unsigned, because files may be dated beyond 2262, where the signed product overflows.
    status.modifiedNs =
        static_cast<std::int64_t>(static_cast<std::uint64_t>(info.st_mtim.tv_sec) * 1000000000U +
                                  static_cast<std::uint64_t>(info.st_mtim.tv_nsec));
    return status;
}

/// A path with an embedded zero names nothing: the system would cut it there.
bool isUsable(const std::wstring& path)
{
    return !path.empty() && path.find(L'\0') == std::wstring::npos;
}

} // namespace

FileStatus fileStatus(const std::wstring& path)
{
    if (!isUsable(path))
        return {};
    const std::string name = nativePath(path);
    struct stat link = {};
    if (::lstat(name.c_str(), &link) != 0)
        return {};
    struct stat target = {};
    FileStatus status;
    if (::stat(name.c_str(), &target) == 0)
        status = fromStat(target);
    else
        status.kind = FileKind::DanglingLink;
    status.isLink = S_ISLNK(link.st_mode);
    return status;
}

ResultCode removeFile(const std::wstring& path)
{
    if (!isUsable(path))
        return err::system(ENOENT);
    return outcome(::unlink(nativePath(path).c_str()) == 0);
}

ResultCode syncFolderOf(const std::wstring& path)
{
    std::string folder = std::filesystem::path(nativePath(path)).parent_path().string();
    if (folder.empty())
        folder = ".";
    const int handle = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) // a folder that takes files without showing them can't be synced; the file itself was
        return outcome(errno == EACCES);
    ResultCode result = outcome(::fsync(handle) == 0);
    if (result == err::system(EINVAL)) // some file systems have nothing to sync in a folder
        result = {};
    ::close(handle);
    return result;
}

File::~File()
{
    (void)close();
}

File::File(File&& other) noexcept : m_handle(std::exchange(other.m_handle, -1))
{
}

File& File::operator=(File&& other) noexcept
{
    std::swap(m_handle, other.m_handle);
    return *this;
}

ResultCode File::openForReading(const std::wstring& path)
{
    (void)close();
    if (!isUsable(path))
        return err::system(ENOENT);
    const std::string name = nativePath(path);
    m_handle =
        uninterrupted([&] { return ::open(name.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK); });
    if (!isOpen())
        return err::system(errno);
    ::posix_fadvise(m_handle, 0, 0, POSIX_FADV_SEQUENTIAL);
    return {};
}

ResultCode File::openForWriting(const std::wstring& path, Creation creation, Access access)
{
    (void)close();
    if (!isUsable(path))
        return err::system(ENOENT);
    const std::string name = nativePath(path);
    int flags = O_RDWR | O_CREAT | O_CLOEXEC | O_NOCTTY | O_NONBLOCK;
    if (creation == Creation::CreateNew)
        flags |= O_EXCL;
    const mode_t mode = access == Access::Private ? 0600 : 0666;
    m_handle = uninterrupted([&] { return ::open(name.c_str(), flags, mode); });
    return outcome(isOpen());
}

ResultCode File::status(FileStatus& status) const
{
    struct stat info = {};
    if (::fstat(m_handle, &info) != 0)
        return err::system(errno);
    status = fromStat(info);
    return {};
}

ResultCode File::read(void* buffer, std::size_t count, std::size_t& countRead) const
{
    const ssize_t got = uninterrupted([&] { return ::read(m_handle, buffer, count); });
    countRead = got > 0 ? static_cast<std::size_t>(got) : 0;
    return outcome(got >= 0);
}

ResultCode File::write(const void* buffer, std::size_t count, std::size_t& countWritten) const
{
    const ssize_t put = uninterrupted([&] { return ::write(m_handle, buffer, count); });
    countWritten = put > 0 ? static_cast<std::size_t>(put) : 0;
    return outcome(put >= 0);
}

ResultCode File::seekToEnd() const
{
    return outcome(::lseek(m_handle, 0, SEEK_END) >= 0);
}

void File::startWriteback(std::int64_t offset, std::int64_t count) const
{
    (void)::sync_file_range(m_handle, offset, count, SYNC_FILE_RANGE_WRITE);
}

ResultCode File::sync() const
{
    return outcome(uninterrupted([&] { return ::fsync(m_handle); }) == 0);
}

ResultCode File::close()
{
    const int handle = std::exchange(m_handle, -1);
    if (handle < 0)
        return {};
    // After EINTR the descriptor is gone on Linux; closing again could hit another thread's file.
    return outcome(::close(handle) == 0 || errno == EINTR);
}

} // namespace tessaly::platform
