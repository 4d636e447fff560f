#include "lib/platform/File.h"

#include "lib/platform/windows/AccessList.h"
#include "lib/platform/windows/FileStatus.h"
#include "lib/platform/windows/FolderEntry.h"
#include "lib/platform/windows/SystemCall.h"
#include "lib/platform/windows/SystemPath.h"

#include <algorithm>
#include <atomic>
#include <string>
#include <utility>

namespace tessaly::platform {

namespace {

/// The most that one call is asked for; its count has 32 bits.
constexpr std::size_t MostAtOnce = 1U << 30U;

/// A user's share of the volume is used up; not in every header.
constexpr DWORD QuotaExceeded = 1295;

/// Far behind the end of any file, as locked bytes can be neither read nor written by others.
constexpr DWORD LockPlace = 0x7FFFFFFF; ///< upper half of the offset

int opened(const std::filesystem::path& path, DWORD access, DWORD disposition)
{
    // Folders, too, can be opened then, to be told from files by their status.
    return toNumber(::CreateFileW(systemPath(path).c_str(), access, ShareAll, nullptr, disposition,
                                  FILE_ATTRIBUTE_NORMAL | FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

ResultCode moveTo(HANDLE file, DWORD origin)
{
    return outcome(::SetFilePointerEx(file, LARGE_INTEGER{}, nullptr, origin));
}

std::wstring temporaryName()
{
    static std::atomic<unsigned> counter = 0;
    return L".quillet-" + std::to_wstring(::GetCurrentProcessId()) + L'-' +
           std::to_wstring(::GetTickCount64()) + L'-' + std::to_wstring(++counter);
}

} // namespace

ResultCode removeFile(const std::filesystem::path& path)
{
    if (path.empty() || isMisread(path))
        return systemError(ERROR_FILE_NOT_FOUND);
    const OwnHandle file(::CreateFileW(systemPath(path).c_str(), DELETE, ShareAll, nullptr, OPEN_EXISTING,
                                       FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    return file ? removeOpened(file.get()) : systemError(::GetLastError());
}

// What m_mode means: with m_forGroup the fingerprint of the list that the new file's must equal to be
// handed down by the folder; without it, whether the folder's is.

Access Access::ownerOnly()
{
    return {};
}

Access Access::byUmask()
{
    Access access;
    access.m_mode = 1;
    return access;
}

Access Access::noMoreThan(const FileStatus& file)
{
    Access access;
    access.m_mode = file.mode;
    access.m_forGroup = true;
    return file.mode == NoAccessList ? byUmask() : file.mode == UnknownAccess ? ownerOnly() : access;
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
    if (path.empty() || isMisread(path))
        return systemError(ERROR_FILE_NOT_FOUND);
    m_handle = opened(path, GENERIC_READ, OPEN_EXISTING);
    return outcome(isOpen());
}

ResultCode File::openForWriting(const std::filesystem::path& path)
{
    (void)close();
    if (path.empty() || isMisread(path))
        return systemError(ERROR_FILE_NOT_FOUND);
    m_handle = opened(path, GENERIC_READ | GENERIC_WRITE, OPEN_ALWAYS);
    return outcome(isOpen());
}

ResultCode File::openTemporary(const std::filesystem::path& folder)
{
    (void)close();
    PrivateAccess access;
    if (!access.attributes())
        return systemError(ERROR_INVALID_SECURITY_DESCR);
    // The name is there, but shared with nobody, and ends with the handle even if the process is killed.
    m_handle = toNumber(::CreateFileW(systemPath(folder / temporaryName()).c_str(),
                                      GENERIC_READ | GENERIC_WRITE, 0, access.attributes(), CREATE_NEW,
                                      FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr));
    return outcome(isOpen());
}

ResultCode File::status(FileStatus& status) const
{
    return handleStatus(toHandle(m_handle), status);
}

ResultCode File::read(void* buffer, std::size_t count, std::size_t& countRead) const
{
    DWORD got = 0;
    const BOOL done = ::ReadFile(toHandle(m_handle), buffer, static_cast<DWORD>(std::min(count, MostAtOnce)),
                                 &got, nullptr);
    countRead = got;
    return done || ::GetLastError() == ERROR_HANDLE_EOF ? ResultCode{} : systemError(::GetLastError());
}

ResultCode File::write(const void* buffer, std::size_t count, std::size_t& countWritten) const
{
    DWORD put = 0;
    const BOOL done = ::WriteFile(toHandle(m_handle), buffer, static_cast<DWORD>(std::min(count, MostAtOnce)),
                                  &put, nullptr);
    countWritten = put;
    if (done && put == 0 && count > 0) // no reason given, and asking again would go on for ever
        return systemError(ERROR_WRITE_FAULT);
    return outcome(done);
}

ResultCode File::seekToStart() const
{
    return moveTo(toHandle(m_handle), FILE_BEGIN);
}

ResultCode File::seekToEnd() const
{
    return moveTo(toHandle(m_handle), FILE_END);
}

ResultCode File::reserve(std::int64_t size) const
{
    LARGE_INTEGER present = {};
    if (!::GetFileSizeEx(toHandle(m_handle), &present) || size <= present.QuadPart)
        return {}; // less room than it has would shorten it
    FILE_ALLOCATION_INFO info = {};
    info.AllocationSize.QuadPart = size;
    if (::SetFileInformationByHandle(toHandle(m_handle), FileAllocationInfo, &info, sizeof info))
        return {};
    switch (const DWORD error = ::GetLastError()) {
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case ERROR_FILE_TOO_LARGE:
    case QuotaExceeded:
        return systemError(error);
    default:
        return {};
    }
}

void File::startWriteback(std::int64_t, std::int64_t) const
{
    // Nothing to be asked for: the system begins by itself.
}

ResultCode File::sync() const
{
    return outcome(::FlushFileBuffers(toHandle(m_handle)));
}

ResultCode File::tryLock(Lock lock) const
{
    OVERLAPPED place = {};
    place.OffsetHigh = LockPlace;
    const DWORD kind = lock == Lock::Exclusive ? LOCKFILE_EXCLUSIVE_LOCK : 0;
    return outcome(::LockFileEx(toHandle(m_handle), kind | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place));
}

ResultCode File::close()
{
    const int handle = std::exchange(m_handle, -1);
    return handle < 0 ? ResultCode{} : outcome(::CloseHandle(toHandle(handle)));
}

} // namespace tessaly::platform
