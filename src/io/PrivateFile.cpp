#include "io/PrivateFile.h"

#include "io/OStreamNewFile.h"
#include "lib/err/ErrorCodes.h"
#include "lib/platform/Path.h"

#include <filesystem>
#include <random>

namespace tessaly::io {

namespace {

ResultCode writeNew(const std::wstring& path, std::string_view contents, bool& created)
{
    OStreamNewFile file(path, platform::Access::Private);
    const auto count = static_cast<std::int64_t>(contents.size());
    const bool written = file.write(contents.data(), count) == count;
    created = file.isCreated();
    return written ? file.finish() : file.lastError();
}

ResultCode replace(const std::wstring& from, const std::wstring& to)
{
    std::error_code error;
    std::filesystem::rename(platform::nativePath(from), platform::nativePath(to), error);
    return error ? err::system(error.value()) : platform::syncFolderOf(to);
}

} // namespace

ResultCode writePrivateFile(const std::wstring& path, std::string_view contents)
{
    const std::wstring temporary = path + L"." + std::to_wstring(std::random_device{}());
    bool created = false;
    ResultCode result = writeNew(temporary, contents, created);
    if (result.ok())
        result = replace(temporary, path);
    if (!result.ok() && created)
        static_cast<void>(platform::removeFile(temporary));
    return result;
}

} // namespace tessaly::io
