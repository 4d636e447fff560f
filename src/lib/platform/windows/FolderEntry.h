#pragma once

#include "lib/err/ResultCode.h"
#include "lib/platform/windows/SystemCall.h"

#include <functional>
#include <string>

/// Entries of a folder that is held open, reached by their name in it and not through any path. The system
/// takes these names letter by letter, so they are not to be misread by other programs (see isMisread).
namespace tessaly::platform {

/// How to open one; the defaults only look at it.
struct EntryOpening
{
    DWORD access = FILE_READ_ATTRIBUTES;
    DWORD share = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    bool isNew = false; ///< created, and refused when anything stands there
    bool followsLinks = true;
    SECURITY_ATTRIBUTES* security = nullptr; ///< of a new one; null for what the folder hands down
};

ResultCode openEntry(HANDLE folder, const std::wstring& name, const EntryOpening& opening, OwnHandle& opened);

/// Gives an entry that is open with the right DELETE another name in its folder.
ResultCode renameEntry(HANDLE entry, HANDLE folder, const std::wstring& name, bool replaces);

/// Removes what is open with the right DELETE: its name at once where the system can, and with its last
/// handle elsewhere.
ResultCode removeOpened(HANDLE file);

/// Whether what is open with the right DELETE is removed with its last handle; nobody else can open it then.
ResultCode endWithHandle(HANDLE file, bool ends);

/// Calls for each name, until that gives false.
void forEachEntry(HANDLE folder, const std::function<bool(const std::wstring&)>& use);

} // namespace tessaly::platform
