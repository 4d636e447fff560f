#include "lib/platform/windows/FileStatus.h"

#include "lib/platform/windows/AccessList.h"
#include "lib/platform/windows/SystemCall.h"
#include "lib/platform/windows/SystemPath.h"

#include <cstring>

namespace tessaly::platform {

namespace {

std::uint64_t joined(DWORD high, DWORD low)
{
    return static_cast<std::uint64_t>(high) << 32U | low;
}

/// Some file systems number their files with 128 bits. Odd, so that no high part is lost.
std::uint64_t folded(const FILE_ID_128& id)
{
    std::uint64_t parts[2] = {};
    static_assert(sizeof parts == sizeof id);
    std::memcpy(parts, &id, sizeof id);
    return parts[0] + parts[1] * 0x9E3779B97F4A7C15U;
}

/// A symbolic link or a junction; other reparse points, such as files of a cloud, are files.
bool isLink(HANDLE file)
{
    FILE_ATTRIBUTE_TAG_INFO info = {};
    return ::GetFileInformationByHandleEx(file, FileAttributeTagInfo, &info, sizeof info) &&
           (info.FileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
           (info.ReparseTag == IO_REPARSE_TAG_SYMLINK || info.ReparseTag == IO_REPARSE_TAG_MOUNT_POINT);
}

} // namespace

ResultCode handleStatus(HANDLE file, FileStatus& status)
{
    status = {};
    if (::GetFileType(file) != FILE_TYPE_DISK) {
        status.kind = FileKind::Other;
        return {};
    }
    BY_HANDLE_FILE_INFORMATION info = {};
    if (!::GetFileInformationByHandle(file, &info))
        return systemError(::GetLastError());
    status.kind = info.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY ? FileKind::Directory : FileKind::Regular;
    status.device = info.dwVolumeSerialNumber;
    status.inode = joined(info.nFileIndexHigh, info.nFileIndexLow);
    FILE_ID_INFO id = {};
    if (::GetFileInformationByHandleEx(file, FileIdInfo, &id, sizeof id)) {
        status.device = id.VolumeSerialNumber;
        status.inode = folded(id.FileId);
    }
    FILE_STANDARD_INFO standard = {};
    const bool isKnown =
        ::GetFileInformationByHandleEx(file, FileStandardInfo, &standard, sizeof standard) != FALSE;
    status.hardLinks = isKnown && standard.DeletePending ? 0 : info.nNumberOfLinks;
    status.size = static_cast<std::int64_t>(joined(info.nFileSizeHigh, info.nFileSizeLow));
    // In units of 100 ns; unsigned, because the product may overflow.
    status.modifiedNs = static_cast<std::int64_t>(
        joined(info.ftLastWriteTime.dwHighDateTime, info.ftLastWriteTime.dwLowDateTime) * 100U);
    status.mode = accessFingerprint(file);
    return {};
}

FileStatus lookedAt(const std::function<OwnHandle(bool followsLinks)>& open)
{
    FileStatus status;
    OwnHandle file = open(false);
    if (!file)
        return status;
    const bool link = isLink(file.get());
    if (link)
        file = open(true);
    if (!file)
        status.kind = FileKind::DanglingLink;
    else if (!handleStatus(file.get(), status).ok())
        status.kind = FileKind::Other;
    status.isLink = link;
    return status;
}

FileStatus fileStatus(const std::filesystem::path& path)
{
    FileStatus status;
    if (path.empty())
        return status;
    if (isMisread(path)) {
        // No file has a name that ends in a blank: texts are tried as they stand before theirs are cut off.
        if (!path.native().ends_with(L' '))
            status.kind = FileKind::Other;
        return status;
    }
    const std::wstring name = systemPath(path);
    return lookedAt([&name](bool followsLinks) {
        const DWORD link = followsLinks ? 0 : FILE_FLAG_OPEN_REPARSE_POINT;
        return OwnHandle(::CreateFileW(name.c_str(), FILE_READ_ATTRIBUTES, ShareAll, nullptr, OPEN_EXISTING,
                                       FILE_FLAG_BACKUP_SEMANTICS | link, nullptr));
    });
}

} // namespace tessaly::platform
