#include "io/PathCheck.h"

#include "lib/platform/File.h"
#include "lib/platform/Path.h"

#include <algorithm>
#include <filesystem>

namespace tessaly::io {

using platform::FileKind;
using platform::FileStatus;

namespace {

bool isInFolder(const std::filesystem::path& path)
{
    const auto folder = path.has_parent_path() ? path.parent_path() : std::filesystem::path(".");
    return platform::fileStatus(folder).kind == FileKind::Directory;
}

} // namespace

InputCheck checkInput(const std::filesystem::path& input)
{
    switch (platform::fileStatus(input).kind) {
    case FileKind::Regular:
        return InputCheck::Usable;
    case FileKind::Missing:
    case FileKind::DanglingLink:
        return InputCheck::NotFound;
    case FileKind::Directory:
    case FileKind::Other:
        break;
    }
    return InputCheck::NotRegular;
}

OutputCheck checkOutput(const std::filesystem::path& input, const std::filesystem::path& output)
{
    if (samePath(input, output))
        return OutputCheck::MatchesInput;
    const FileStatus there = platform::fileStatus(output);
    if (!there.exists())
        return isInFolder(output) ? OutputCheck::Free : OutputCheck::NoFolder;
    if (there.sameFile(platform::fileStatus(input)))
        return OutputCheck::MatchesInput;
    return there.kind == FileKind::Regular && !there.isLink ? OutputCheck::Exists : OutputCheck::NotRegular;
}

bool samePath(const std::filesystem::path& first, const std::filesystem::path& second)
{
    return pathKey(first) == pathKey(second);
}

std::wstring pathKey(const std::filesystem::path& path)
{
    std::wstring key = platform::wideText(platform::absolutePath(path).lexically_normal());
    std::ranges::transform(key, key.begin(), platform::lowerCase);
    return key;
}

} // namespace tessaly::io
