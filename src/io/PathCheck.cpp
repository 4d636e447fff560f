#include "io/PathCheck.h"

#include "lib/platform/File.h"
#include "lib/platform/Path.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace tessaly::io {

using platform::FileKind;
using platform::FileStatus;

namespace {

std::wstring normalized(const std::wstring& path)
{
    std::error_code error;
    const std::filesystem::path native = platform::nativePath(path);
    const auto absolute = std::filesystem::absolute(native, error);
    return platform::widePath((error ? native : absolute).lexically_normal().string());
}

} // namespace

InputCheck checkInput(const std::wstring& input)
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

OutputCheck checkOutput(const std::wstring& input, const std::wstring& output)
{
    if (samePath(input, output))
        return OutputCheck::MatchesInput;
    const FileStatus there = platform::fileStatus(output);
    if (there.kind == FileKind::Missing)
        return OutputCheck::Free;
    if (there.sameFile(platform::fileStatus(input)))
        return OutputCheck::MatchesInput;
    return there.kind == FileKind::Regular ? OutputCheck::Exists : OutputCheck::NotRegular;
}

bool samePath(const std::wstring& first, const std::wstring& second)
{
    return std::ranges::equal(normalized(first), normalized(second), {}, platform::lowerCase,
                              platform::lowerCase);
}

} // namespace tessaly::io
