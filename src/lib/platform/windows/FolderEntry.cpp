#include "lib/platform/windows/FolderEntry.h"

#include <cstdint>
#include <cstring>
#include <vector>
#include <winternl.h>

namespace tessaly::platform {

namespace {

constexpr ULONG RenameInformation = 10;
constexpr ULONG RenameInformationEx = 65; // since Windows 10
constexpr auto DispositionInfoEx = static_cast<FILE_INFO_BY_HANDLE_CLASS>(21);

constexpr DWORD ReplaceIfExists = 0x1;
constexpr DWORD RenameWhileOpen = 0x2; // FILE_RENAME_POSIX_SEMANTICS
constexpr DWORD Delete = 0x1;
constexpr DWORD DeleteAtOnce = 0x2; // FILE_DISPOSITION_POSIX_SEMANTICS

ResultCode outcomeOf(NTSTATUS status)
{
    return status >= 0 ? ResultCode{} : systemError(::RtlNtStatusToDosError(status));
}

UNICODE_STRING viewOf(std::wstring& name)
{
    const auto bytes = static_cast<USHORT>(name.size() * sizeof(wchar_t));
    return {bytes, bytes, name.data()};
}

/// The kinds are more than the header's enumeration has. `flags` goes where the older kind of the call has a
/// single byte for ReplaceIfExists.
NTSTATUS rename(HANDLE entry, HANDLE folder, const std::wstring& name, ULONG kind, DWORD flags)
{
    using SetInformation = NTSTATUS(NTAPI*)(HANDLE, PIO_STATUS_BLOCK, PVOID, ULONG, ULONG);
    const auto setInformation =
        reinterpret_cast<SetInformation>(reinterpret_cast<void*>(&::NtSetInformationFile));
    const std::size_t bytes = name.size() * sizeof(wchar_t);
    std::vector<std::uint64_t> buffer((sizeof(FILE_RENAME_INFO) + bytes) / sizeof(std::uint64_t) + 1);
    auto* info = reinterpret_cast<FILE_RENAME_INFO*>(buffer.data());
    std::memcpy(info, &flags, sizeof flags);
    info->RootDirectory = folder;
    info->FileNameLength = static_cast<DWORD>(bytes);
    std::memcpy(info->FileName, name.data(), bytes);
    IO_STATUS_BLOCK done = {};
    return setInformation(entry, &done, info, static_cast<ULONG>(sizeof(FILE_RENAME_INFO) + bytes), kind);
}

} // namespace

// The system's own interface, as its application interface takes no folder beside a name.
ResultCode openEntry(HANDLE folder, const std::wstring& name, const EntryOpening& opening, OwnHandle& opened)
{
    constexpr std::size_t LongestName = 32767; // the length has 16 bits
    if (name.size() > LongestName)
        return systemError(ERROR_FILENAME_EXCED_RANGE);
    std::wstring copy = name;
    UNICODE_STRING view = viewOf(copy);
    OBJECT_ATTRIBUTES object = {};
    object.Length = sizeof object;
    object.RootDirectory = folder;
    object.ObjectName = &view;
    object.Attributes = OBJ_CASE_INSENSITIVE;
    object.SecurityDescriptor = opening.security ? opening.security->lpSecurityDescriptor : nullptr;
    const ULONG kind = opening.isNew ? FILE_NON_DIRECTORY_FILE : FILE_OPEN_FOR_BACKUP_INTENT;
    const ULONG link = opening.followsLinks ? 0 : FILE_OPEN_REPARSE_POINT;
    HANDLE handle = nullptr;
    IO_STATUS_BLOCK done = {};
    const NTSTATUS status = ::NtCreateFile(
        &handle, opening.access | SYNCHRONIZE, &object, &done, nullptr, FILE_ATTRIBUTE_NORMAL, opening.share,
        opening.isNew ? FILE_CREATE : FILE_OPEN, FILE_SYNCHRONOUS_IO_NONALERT | kind | link, nullptr, 0);
    if (status >= 0)
        opened = OwnHandle(handle);
    return outcomeOf(status);
}

ResultCode renameEntry(HANDLE entry, HANDLE folder, const std::wstring& name, bool replaces)
{
    const DWORD replacing = replaces ? ReplaceIfExists : 0;
    // What stands there may be open, as long as all share that.
    const ResultCode renamed =
        outcomeOf(rename(entry, folder, name, RenameInformationEx, replacing | RenameWhileOpen));
    return renamed.ok() || renamed == systemError(ERROR_ALREADY_EXISTS)
               ? renamed
               : outcomeOf(rename(entry, folder, name, RenameInformation, replacing));
}

ResultCode removeOpened(HANDLE file)
{
    DWORD flags = Delete | DeleteAtOnce;
    if (::SetFileInformationByHandle(file, DispositionInfoEx, &flags, sizeof flags))
        return {};
    return endWithHandle(file, true);
}

ResultCode endWithHandle(HANDLE file, bool ends)
{
    FILE_DISPOSITION_INFO info = {ends};
    return outcome(::SetFileInformationByHandle(file, FileDispositionInfo, &info, sizeof info));
}

void forEachEntry(HANDLE folder, const std::function<bool(const std::wstring&)>& use)
{
    std::vector<std::uint64_t> buffer(8192);
    const auto size = static_cast<DWORD>(buffer.size() * sizeof(std::uint64_t));
    auto kind = FileFullDirectoryRestartInfo;
    while (::GetFileInformationByHandleEx(folder, kind, buffer.data(), size)) {
        kind = FileFullDirectoryInfo;
        const auto* at = reinterpret_cast<const std::uint8_t*>(buffer.data());
        for (;;) {
            const auto& entry = *reinterpret_cast<const FILE_FULL_DIR_INFO*>(at);
            if (!use(std::wstring(entry.FileName, entry.FileNameLength / sizeof(wchar_t))))
                return;
            if (entry.NextEntryOffset == 0)
                break;
            at += entry.NextEntryOffset;
        }
    }
}

} // namespace tessaly::platform
