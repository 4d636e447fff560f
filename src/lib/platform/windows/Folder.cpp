#include "lib/platform/Folder.h"

#include "lib/platform/Path.h"
#include "lib/platform/windows/AccessList.h"
#include "lib/platform/windows/FileStatus.h"
#include "lib/platform/windows/FolderEntry.h"
#include "lib/platform/windows/SystemCall.h"
#include "lib/platform/windows/SystemPath.h"

#include <functional>
#include <string>
#include <utility>

namespace tessaly::platform {

namespace fs = std::filesystem;

namespace {

/// The folder itself stays where it is as long as it is held, for want of FILE_SHARE_DELETE.
constexpr DWORD HoldingShare = FILE_SHARE_READ | FILE_SHARE_WRITE;
/// Nobody looks into a file that is being written, but it can be renamed and removed.
constexpr DWORD NewFileShare = FILE_SHARE_DELETE;
constexpr DWORD NewFileAccess = GENERIC_READ | GENERIC_WRITE | DELETE;

fs::path parentOf(const fs::path& path)
{
    return path.has_parent_path() ? path.parent_path() : fs::path(".");
}

OwnHandle openFolder(const fs::path& path, DWORD access)
{
    return OwnHandle(::CreateFileW(systemPath(path).c_str(), access, HoldingShare, nullptr, OPEN_EXISTING,
                                   FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

/// Empty when it cannot be opened.
OwnHandle openedEntry(HANDLE folder, const fs::path& name, const EntryOpening& opening)
{
    OwnHandle entry;
    (void)openEntry(folder, name, opening, entry);
    return entry;
}

/// A virus scanner, a preview or the index of the search holds a file for a moment, and it would be a pity to
/// fail at the last step of a long job.
ResultCode patiently(DWORD held, const std::function<ResultCode()>& attempt)
{
    constexpr int Attempts = 10;
    constexpr DWORD PauseMs = 100;
    ResultCode result = attempt();
    for (int i = 1; i < Attempts && result == systemError(held); ++i) {
        ::Sleep(PauseMs);
        result = attempt();
    }
    return result;
}

/// To rename or remove it; of a link, the link itself.
ResultCode openToMove(HANDLE folder, const fs::path& name, OwnHandle& entry)
{
    EntryOpening moving;
    moving.access = DELETE;
    moving.followsLinks = false;
    return patiently(ERROR_SHARING_VIOLATION, [&] { return openEntry(folder, name, moving, entry); });
}

ResultCode renamed(HANDLE folder, const fs::path& from, const fs::path& to, bool replaces)
{
    if (to.empty() || isMisread(to))
        return systemError(ERROR_INVALID_NAME);
    OwnHandle entry;
    if (const ResultCode opened = openToMove(folder, from, entry); !opened.ok())
        return opened;
    const auto rename = [&] { return renameEntry(entry.get(), folder, to, replaces); };
    return replaces ? patiently(ERROR_ACCESS_DENIED, rename) : rename();
}

/// To this user, or altogether.
bool isReadOnly(DWORD error)
{
    return error == ERROR_ACCESS_DENIED || error == ERROR_WRITE_PROTECT;
}

/// Files of an administrator may belong to the group of them.
bool isOwn(const std::wstring& owner)
{
    return !owner.empty() && (owner == userSid() || owner == ownerSid());
}

/// Lets the folder's own list hold for a file that until now is its user's alone, if that is the one meant.
ResultCode grant(HANDLE file, std::uint32_t fingerprint)
{
    if (const ResultCode inherited = inheritAccess(file); !inherited.ok())
        return {}; // it stays the user's alone
    return accessFingerprint(file) == fingerprint ? ResultCode{} : PrivateAccess().grantTo(file);
}

} // namespace

bool isMissing(const ResultCode& result)
{
    return result == systemError(ERROR_FILE_NOT_FOUND) || result == systemError(ERROR_PATH_NOT_FOUND);
}

bool isOccupied(const ResultCode& result)
{
    return result == systemError(ERROR_ALREADY_EXISTS) || result == systemError(ERROR_FILE_EXISTS);
}

bool isUnsupported(const ResultCode& result)
{
    for (const auto error : {ERROR_NOT_SUPPORTED, ERROR_INVALID_FUNCTION, ERROR_INVALID_PARAMETER,
                             ERROR_CALL_NOT_IMPLEMENTED, ERROR_INVALID_LEVEL})
        if (result == systemError(static_cast<DWORD>(error)))
            return true;
    return false;
}

bool isLocked(const ResultCode& result)
{
    return result == systemError(ERROR_LOCK_VIOLATION);
}

Folder::~Folder()
{
    if (isOpen())
        ::CloseHandle(toHandle(m_handle));
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
    if (path.empty() || path.filename().empty())
        return systemError(ERROR_FILE_NOT_FOUND);
    const fs::path parent = parentOf(path);
    Folder held;
    OwnHandle folder = openFolder(parent, FILE_LIST_DIRECTORY | FILE_ADD_FILE | FILE_READ_ATTRIBUTES);
    held.m_readable = static_cast<bool>(folder); // it can be flushed as well
    if (!folder && isReadOnly(::GetLastError()))
        folder = openFolder(parent, FILE_TRAVERSE | FILE_READ_ATTRIBUTES);
    FileStatus status;
    if (!folder)
        return systemError(::GetLastError());
    if (const ResultCode known = handleStatus(folder.get(), status); !known.ok())
        return known;
    if (status.kind != FileKind::Directory)
        return systemError(ERROR_DIRECTORY);
    held.m_handle = toNumber(folder.release());
    *this = std::move(held);
    return {};
}

bool Folder::isParentOf(const fs::path& path) const
{
    FileStatus status;
    return handleStatus(toHandle(m_handle), status).ok() && status.sameFile(fileStatus(parentOf(path)));
}

FileStatus Folder::status(const fs::path& name) const
{
    FileStatus status;
    if (isMisread(name)) {
        status.kind = FileKind::Other;
        return status;
    }
    return lookedAt([&](bool followsLinks) {
        EntryOpening look;
        look.followsLinks = followsLinks;
        return openedEntry(toHandle(m_handle), name, look);
    });
}

ResultCode Folder::openForReading(const fs::path& name, File& file) const
{
    if (name.empty() || isMisread(name))
        return systemError(ERROR_FILE_NOT_FOUND);
    EntryOpening reading;
    reading.access = GENERIC_READ;
    OwnHandle entry;
    if (const ResultCode result = openEntry(toHandle(m_handle), name, reading, entry); !result.ok())
        return result;
    File opened;
    opened.m_handle = toNumber(entry.release());
    file = std::move(opened);
    return {};
}

ResultCode Folder::createNew(const fs::path& name, const Access& access, File& file) const
{
    if (name.empty() || isMisread(name))
        return systemError(ERROR_INVALID_NAME);
    PrivateAccess userOnly;
    const bool isOurs = knowsOurUsers(toHandle(m_handle));
    const bool isInherited = !isOurs || (!access.m_forGroup && access.m_mode != 0);
    const bool isGranted = isOurs && access.m_forGroup;
    if (!isInherited && !userOnly.attributes())
        return systemError(ERROR_INVALID_SECURITY_DESCR);
    OwnHandle created;
    const auto create = [&](DWORD rights) {
        const EntryOpening opening{rights, NewFileShare, true, false,
                                   isInherited ? nullptr : userOnly.attributes()};
        return openEntry(toHandle(m_handle), name, opening, created);
    };
    ResultCode result = create(isGranted ? NewFileAccess | WRITE_DAC : NewFileAccess);
    const bool mayGrant = isGranted && result.ok();
    if (isGranted && result == systemError(ERROR_ACCESS_DENIED))
        result = create(NewFileAccess); // a folder may allow no more
    if (!result.ok())
        return result;
    if (mayGrant)
        if (const ResultCode granted = grant(created.get(), access.m_mode); !granted.ok()) {
            created = OwnHandle();
            (void)remove(name);
            return granted;
        }
    File opened;
    opened.m_handle = toNumber(created.release());
    file = std::move(opened);
    return {};
}

/// Its name goes with its last handle, however the process ends.
ResultCode Folder::createNameless(const fs::path& standIn, const Access& access, File& file) const
{
    File created;
    if (const ResultCode result = createNew(standIn, access, created); !result.ok())
        return result;
    if (!endWithHandle(toHandle(created.m_handle), true).ok()) {
        (void)created.close();
        (void)remove(standIn);
        return systemError(ERROR_NOT_SUPPORTED);
    }
    file = std::move(created);
    return {};
}

ResultCode Folder::link(const File& file, const fs::path& name) const
{
    if (name.empty() || isMisread(name))
        return systemError(ERROR_INVALID_NAME);
    const HANDLE nameless = toHandle(file.m_handle);
    ResultCode result = endWithHandle(nameless, false);
    if (result.ok())
        result = renameEntry(nameless, toHandle(m_handle), name, false);
    if (!result.ok())
        (void)endWithHandle(nameless, true);
    return result;
}

ResultCode Folder::renameToNew(const fs::path& from, const fs::path& to) const
{
    return renamed(toHandle(m_handle), from, to, false);
}

ResultCode Folder::renameOver(const fs::path& from, const fs::path& to) const
{
    return renamed(toHandle(m_handle), from, to, true);
}

ResultCode Folder::exchange(const fs::path&, const fs::path&) const
{
    return systemError(ERROR_NOT_SUPPORTED);
}

ResultCode Folder::remove(const fs::path& name) const
{
    if (name.empty() || isMisread(name))
        return systemError(ERROR_FILE_NOT_FOUND);
    OwnHandle entry;
    const ResultCode opened = openToMove(toHandle(m_handle), name, entry);
    return opened.ok() ? removeOpened(entry.get()) : opened;
}

ResultCode Folder::sync() const
{
    // Some file systems have nothing to flush in a folder; theirs is a journal.
    if (m_readable && !::FlushFileBuffers(toHandle(m_handle))) {
        const ResultCode result = systemError(::GetLastError());
        const bool isOther = result == systemError(ERROR_ACCESS_DENIED) || isUnsupported(result);
        return isOther ? ResultCode{} : result;
    }
    return {};
}

std::vector<fs::path> Folder::ownFiles(const std::string& prefix) const
{
    std::vector<fs::path> names;
    const HANDLE folder = toHandle(m_handle);
    const std::wstring start = widePath(prefix);
    forEachEntry(folder, [&](const std::wstring& name) {
        EntryOpening look;
        look.access |= READ_CONTROL;
        look.followsLinks = false;
        FileStatus there;
        if (!name.starts_with(start))
            return true;
        const OwnHandle entry = openedEntry(folder, name, look);
        if (entry && handleStatus(entry.get(), there).ok() && there.kind == FileKind::Regular &&
            isOwn(ownerSid(entry.get())))
            names.emplace_back(name);
        return true;
    });
    return names;
}

} // namespace tessaly::platform
