#include "lib/platform/Folder.h"

#include "lib/platform/linux/FileStatus.h"
#include "lib/platform/linux/SystemCall.h"

#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace tessaly::platform {

namespace fs = std::filesystem;

namespace {

/// The name by which the kernel knows an open file.
std::string handlePath(int handle)
{
    return "/proc/self/fd/" + std::to_string(handle);
}

constexpr mode_t OwnerOnly = 0600;

fs::path parentOf(const fs::path& path)
{
    return path.has_parent_path() ? path.parent_path() : fs::path(".");
}

/// What the umask leaves of every new file. Read before there are threads.
const mode_t umaskAtStart = [] {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return mask;
}();

/// Gives a file, which until now is its owner's alone, the rest of its access. A file that has got another
/// group than it is meant for gives that group no more than everybody, and one with a list of its own
/// (acl(5)), whose entries nobody has asked for, stays its owner's.
ResultCode grant(int handle, mode_t mode, bool forGroup, std::uint32_t group)
{
    struct stat info = {};
    if (::fstat(handle, &info) != 0)
        return err::system(errno);
    mode &= ~umaskAtStart;
    if (forGroup && info.st_gid != group)
        mode = (mode & 0707U) | (mode & (mode & 07U) << 3U);
    if (forGroup && hasAccessList(handle))
        mode &= 0700U;
    return mode == (info.st_mode & 0777U) ? ResultCode{} : outcome(::fchmod(handle, mode) == 0);
}

} // namespace

bool isMissing(const ResultCode& result)
{
    return result == err::system(ENOENT);
}

bool isOccupied(const ResultCode& result)
{
    return result == err::system(EEXIST);
}

bool isUnsupported(const ResultCode& result)
{
    return result == err::system(EINVAL) || result == err::system(ENOSYS) ||
           result == err::system(EOPNOTSUPP);
}

bool isLocked(const ResultCode& result)
{
    return result == err::system(EWOULDBLOCK);
}

Folder::~Folder()
{
    if (isOpen())
        ::close(m_handle);
}

Folder::Folder(Folder&& other) noexcept
    : m_handle(std::exchange(other.m_handle, -1)), m_readable(other.m_readable)
{
}

Folder& Folder::operator=(Folder&& other) noexcept
{
    std::swap(m_handle, other.m_handle);
    std::swap(m_readable, other.m_readable);
    return *this;
}

ResultCode Folder::openParentOf(const fs::path& path)
{
    if (!isUsable(path) || path.filename().empty())
        return err::system(ENOENT);
    const fs::path parent = parentOf(path);
    Folder opened;
    opened.m_handle =
        uninterrupted([&] { return ::open(parent.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NOCTTY); });
    opened.m_readable = opened.isOpen();
    if (!opened.isOpen() && errno == EACCES) // it may still take files without showing them
        opened.m_handle =
            uninterrupted([&] { return ::open(parent.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC); });
    if (!opened.isOpen())
        return err::system(errno);
    *this = std::move(opened);
    return {};
}

bool Folder::isParentOf(const fs::path& path) const
{
    struct stat info = {};
    return ::fstat(m_handle, &info) == 0 && toFileStatus(info).sameFile(fileStatus(parentOf(path)));
}

FileStatus Folder::status(const fs::path& name) const
{
    return isUsable(name) ? entryStatus(m_handle, name.c_str()) : FileStatus{};
}

ResultCode Folder::openForReading(const fs::path& name, File& file) const
{
    File opened;
    opened.m_handle = uninterrupted([&] { return ::openat(m_handle, name.c_str(), ReadingFlags); });
    if (!opened.isOpen())
        return err::system(errno);
    ::posix_fadvise(opened.m_handle, 0, 0, POSIX_FADV_SEQUENTIAL);
    file = std::move(opened);
    return {};
}

ResultCode Folder::createNameless(const fs::path&, const Access& access, File& file) const
{
    File created;
    created.m_handle =
        uninterrupted([&] { return ::openat(m_handle, ".", WritingFlags | O_TMPFILE, OwnerOnly); });
    if (!created.isOpen()) // a kernel or file system that does not know the flag sees a folder to write to
        return err::system(errno == EISDIR || errno == ENOENT || errno == EINVAL ? EOPNOTSUPP : errno);
    // Without /proc the file could never get its name.
    if (::access(handlePath(created.m_handle).c_str(), F_OK) != 0)
        return err::system(EOPNOTSUPP);
    const ResultCode granted = grant(created.m_handle, access.m_mode, access.m_forGroup, access.m_group);
    if (granted.ok())
        file = std::move(created);
    return granted;
}

ResultCode Folder::createNew(const fs::path& name, const Access& access, File& file) const
{
    File created;
    created.m_handle = uninterrupted([&] {
        return ::openat(m_handle, name.c_str(), WritingFlags | O_CREAT | O_EXCL | O_NOFOLLOW, OwnerOnly);
    });
    if (!created.isOpen())
        return err::system(errno);
    const ResultCode granted = grant(created.m_handle, access.m_mode, access.m_forGroup, access.m_group);
    if (granted.ok())
        file = std::move(created);
    else
        (void)remove(name);
    return granted;
}

ResultCode Folder::link(const File& file, const fs::path& name) const
{
    const std::string source = handlePath(file.m_handle);
    return outcome(uninterrupted([&] {
                       return ::linkat(AT_FDCWD, source.c_str(), m_handle, name.c_str(), AT_SYMLINK_FOLLOW);
                   }) == 0);
}

ResultCode Folder::renameToNew(const fs::path& from, const fs::path& to) const
{
    const auto call = [&](auto&& system) { return outcome(uninterrupted(system) == 0); };
    ResultCode result =
        call([&] { return ::renameat2(m_handle, from.c_str(), m_handle, to.c_str(), RENAME_NOREPLACE); });
    if (!isUnsupported(result))
        return result;
    result = call([&] { return ::linkat(m_handle, from.c_str(), m_handle, to.c_str(), 0); });
    if (result.ok())
        (void)remove(from); // the name is given; a second one can be removed later, too
    if (result.ok() || (!isUnsupported(result) && result != err::system(EPERM)))
        return result;
    // A file system with neither: an empty file keeps the place until the rename. A process that is killed
    // in this moment leaves it.
    File place;
    if (const ResultCode kept = createNew(to, Access::ownerOnly(), place); !kept.ok())
        return kept;
    result = renameOver(from, to);
    if (!result.ok())
        (void)remove(to);
    return result;
}

ResultCode Folder::renameOver(const fs::path& from, const fs::path& to) const
{
    return outcome(uninterrupted([&] { return ::renameat(m_handle, from.c_str(), m_handle, to.c_str()); }) ==
                   0);
}

ResultCode Folder::exchange(const fs::path& first, const fs::path& second) const
{
    return outcome(uninterrupted([&] {
                       return ::renameat2(m_handle, first.c_str(), m_handle, second.c_str(), RENAME_EXCHANGE);
                   }) == 0);
}

ResultCode Folder::remove(const fs::path& name) const
{
    if (!isUsable(name))
        return err::system(ENOENT);
    return outcome(uninterrupted([&] { return ::unlinkat(m_handle, name.c_str(), 0); }) == 0);
}

ResultCode Folder::sync() const
{
    if (!m_readable)
        return {};
    const ResultCode result = outcome(uninterrupted([&] { return ::fsync(m_handle); }) == 0);
    return result == err::system(EINVAL) ? ResultCode{} : result; // some have nothing to sync in a folder
}

std::vector<fs::path> Folder::ownFiles(const std::string& prefix) const
{
    std::vector<fs::path> names;
    const int handle = ::openat(m_handle, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const std::unique_ptr<DIR, int (*)(DIR*)> list(handle < 0 ? nullptr : ::fdopendir(handle), ::closedir);
    if (!list) {
        if (handle >= 0)
            ::close(handle);
        return names;
    }
    while (const dirent* entry = ::readdir(list.get())) {
        struct stat info = {};
        if (std::string_view(entry->d_name).starts_with(prefix) &&
            ::fstatat(m_handle, entry->d_name, &info, AT_SYMLINK_NOFOLLOW) == 0 && S_ISREG(info.st_mode) &&
            info.st_uid == ::geteuid())
            names.emplace_back(entry->d_name);
    }
    return names;
}

} // namespace tessaly::platform
