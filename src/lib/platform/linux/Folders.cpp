#include "lib/platform/Folders.h"

#include "lib/err/ErrorCodes.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace tessaly::platform {

namespace {

/// An environment variable's path; relative ones are ignored, as the base directory rules demand.
std::string absolutePathFrom(const char* variable)
{
    const char* value = std::getenv(variable);
    return value != nullptr && *value == '/' ? value : std::string();
}

std::string homeFolder()
{
    if (std::string home = absolutePathFrom("HOME"); !home.empty())
        return home;
    std::vector<char> buffer(16384);
    passwd entry{};
    passwd* found = nullptr;
    if (::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || found == nullptr)
        return {};
    return found->pw_dir;
}

std::string baseFolder(const char* variable, const char* belowHome)
{
    std::string folder = absolutePathFrom(variable);
    if (folder.empty())
        if (const std::string home = homeFolder(); !home.empty())
            folder = home + belowHome;
    while (folder.size() > 1 && folder.back() == '/')
        folder.pop_back();
    return folder;
}

void flush(const std::string& folder)
{
    const int handle = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return;
    while (::fsync(handle) != 0 && errno == EINTR)
        ;
    ::close(handle);
}

/// `made` gets the parent of each folder that this makes.
template <class Made>
ResultCode create(const std::string& path, mode_t mode, const Made& made)
{
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored))
        return {};
    const std::string parent = std::filesystem::path(path).parent_path().string();
    if (!parent.empty() && parent != path)
        if (const ResultCode result = create(parent, mode, made); !result.ok())
            return result;
    if (::mkdir(path.c_str(), mode) == 0) {
        made(parent.empty() ? "." : parent);
        return {};
    }
    const int error = errno;
    return std::filesystem::is_directory(path, ignored) ? ResultCode{} : err::system(error);
}

} // namespace

std::string configFolder()
{
    return baseFolder("XDG_CONFIG_HOME", "/.config");
}

std::string dataFolder()
{
    return baseFolder("XDG_DATA_HOME", "/.local/share");
}

std::string stateFolder()
{
    return baseFolder("XDG_STATE_HOME", "/.local/state");
}

ResultCode createPrivateFolders(const std::string& path)
{
    return create(path, S_IRWXU, [](const std::string&) {});
}

ResultCode createFolders(const std::string& path)
{
    return create(path, S_IRWXU | S_IRWXG | S_IRWXO, flush);
}

} // namespace tessaly::platform
