#include "lib/platform/File.h"

#include "lib/platform/linux/FileStatus.h"
#include "lib/platform/linux/SystemCall.h"

#include <cstdlib>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <utility>

namespace tessaly::platform {

FileStatus toFileStatus(const struct stat& info)
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
    status.mode = info.st_mode & 07777U;
    status.group = info.st_gid;
    return status;
}

FileStatus entryStatus(int folder, const char* name)
{
    struct stat info = {};
    if (::fstatat(folder, name, &info, AT_SYMLINK_NOFOLLOW) != 0)
        return {};
    FileStatus status;
    const bool isLink = S_ISLNK(info.st_mode);
    if (isLink && ::fstatat(folder, name, &info, 0) != 0)
        status.kind = FileKind::DanglingLink;
    else
        status = toFileStatus(info);
    status.isLink = isLink;
    return status;
}

bool hasAccessList(int handle)
{
    return ::fgetxattr(handle, "system.posix_acl_access", nullptr, 0) > 0;
}

bool isUsable(const std::filesystem::path& path)
{
    return !path.empty() && path.native().find('\0') == std::string::npos;
}

FileStatus fileStatus(const std::filesystem::path& path)
{
    return isUsable(path) ? entryStatus(AT_FDCWD, path.c_str()) : FileStatus{};
}

ResultCode removeFile(const std::filesystem::path& path)
{
    if (!isUsable(path))
        return err::system(ENOENT);
    return outcome(uninterrupted([&] { return ::unlink(path.c_str()); }) == 0);
}

Access Access::ownerOnly()
{
    Access access;
    access.m_mode = 0600;
    return access;
}

Access Access::byUmask()
{
    Access access;
    access.m_mode = 0666;
    return access;
}

Access Access::noMoreThan(const FileStatus& file)
{
    Access access;
    access.m_mode = file.mode & 0666U;
    access.m_group = file.group;
    access.m_forGroup = true;
    return access;
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

ResultCode File::openForReading(const std::filesystem::path& path)
{
    (void)close();
    if (!isUsable(path))
        return err::system(ENOENT);
    m_handle = uninterrupted([&] { return ::open(path.c_str(), ReadingFlags); });
    return outcome(isOpen());
}

ResultCode File::openForWriting(const std::filesystem::path& path)
{
    (void)close();
    if (!isUsable(path))
        return err::system(ENOENT);
    m_handle = uninterrupted([&] { return ::open(path.c_str(), WritingFlags | O_CREAT, 0666); });
    return outcome(isOpen());
}

ResultCode File::openTemporary(const std::filesystem::path& folder)
{
    (void)close();
    m_handle = uninterrupted(
        [&] { return ::open(folder.c_str(), O_RDWR | O_CLOEXEC | O_TMPFILE | O_EXCL, S_IRUSR | S_IWUSR); });
    if (isOpen() || (errno != EISDIR && errno != ENOENT && errno != EINVAL && errno != EOPNOTSUPP))
        return outcome(isOpen());
    // A kernel or file system that does not know the flag. The name is gone before the first byte comes.
    std::string name = (folder / ".quillet-XXXXXX").string();
    m_handle = ::mkostemp(name.data(), O_CLOEXEC);
    return outcome(isOpen() && ::unlink(name.c_str()) == 0);
}

ResultCode File::status(FileStatus& status) const
{
    struct stat info = {};
    if (::fstat(m_handle, &info) != 0)
        return err::system(errno);
    status = toFileStatus(info);
    if (hasAccessList(m_handle)) // the group's bits then are a mask over the list
        status.mode &= 0700U;
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
    if (put == 0 && count > 0) // no reason given, and asking again would go on for ever
        return err::system(EIO);
    return outcome(put >= 0);
}

ResultCode File::seekToStart() const
{
    return outcome(::lseek(m_handle, 0, SEEK_SET) >= 0);
}

ResultCode File::seekToEnd() const
{
    return outcome(::lseek(m_handle, 0, SEEK_END) >= 0);
}

ResultCode File::reserve(std::int64_t size) const
{
    const ResultCode result =
        outcome(uninterrupted([&] { return ::fallocate(m_handle, FALLOC_FL_KEEP_SIZE, 0, size); }) == 0);
    const bool noRoom =
        result == err::system(ENOSPC) || result == err::system(EDQUOT) || result == err::system(EFBIG);
    return noRoom ? result : ResultCode{};
}

void File::startWriteback(std::int64_t offset, std::int64_t count) const
{
    (void)::sync_file_range(m_handle, offset, count, SYNC_FILE_RANGE_WRITE);
}

ResultCode File::sync() const
{
    return outcome(uninterrupted([&] { return ::fsync(m_handle); }) == 0);
}

ResultCode File::tryLock(Lock lock) const
{
    const int kind = lock == Lock::Shared ? LOCK_SH : LOCK_EX;
    return outcome(uninterrupted([&] { return ::flock(m_handle, kind | LOCK_NB); }) == 0);
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
