#include "lib/platform/Folders.h"

#include "lib/platform/Folder.h"
#include "lib/platform/Path.h"
#include "lib/platform/windows/AccessList.h"
#include "lib/platform/windows/FileStatus.h"
#include "lib/platform/windows/SystemCall.h"
#include "lib/platform/windows/SystemPath.h"

#include <filesystem>
#include <shlobj.h>

namespace tessaly::platform {

namespace {

std::string knownFolder(const KNOWNFOLDERID& id)
{
    PWSTR path = nullptr;
    const bool known = SUCCEEDED(::SHGetKnownFolderPath(id, KF_FLAG_DONT_VERIFY, nullptr, &path));
    std::string folder = known ? nativePath(path) : std::string();
    ::CoTaskMemFree(path);
    while (folder.ends_with('\\'))
        folder.pop_back();
    return folder;
}

bool isFolder(const std::filesystem::path& path)
{
    return fileStatus(path).kind == FileKind::Directory;
}

ResultCode create(const std::filesystem::path& path, SECURITY_ATTRIBUTES* access)
{
    if (isFolder(path))
        return {};
    const std::filesystem::path parent = path.parent_path();
    if (!parent.empty() && parent != path)
        if (const ResultCode result = create(parent, access); !result.ok())
            return result;
    const ResultCode made = outcome(::CreateDirectoryW(systemPath(path).c_str(), access));
    Folder in;
    if (made.ok() && in.openParentOf(path).ok())
        (void)in.sync();
    return made.ok() || isFolder(path) ? ResultCode{} : made;
}

} // namespace

std::string configFolder()
{
    return knownFolder(FOLDERID_RoamingAppData);
}

std::string dataFolder()
{
    return knownFolder(FOLDERID_LocalAppData);
}

std::string stateFolder()
{
    return knownFolder(FOLDERID_LocalAppData);
}

ResultCode createPrivateFolders(const std::string& path)
{
    PrivateAccess access;
    return access.attributes() ? create(pathFromWide(widePath(path)), access.attributes())
                               : systemError(ERROR_INVALID_SECURITY_DESCR);
}

ResultCode createFolders(const std::string& path)
{
    return create(pathFromWide(widePath(path)), nullptr);
}

} // namespace tessaly::platform
