#include "lib/platform/windows/SystemPath.h"

#include "lib/platform/Path.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <windows.h>

namespace tessaly::platform {

namespace {

/// From here on CreateDirectory, which wants room for a file name, refuses a path that is not marked.
constexpr std::size_t LongPath = MAX_PATH - 12;

/// See "Naming Files, Paths, and Namespaces". With any extension they name the device all the same.
constexpr std::array DeviceNames{
    L"con",  L"prn",  L"aux",       L"nul",       L"conin$",    L"conout$",   L"com0",      L"com1",
    L"com2", L"com3", L"com4",      L"com5",      L"com6",      L"com7",      L"com8",      L"com9",
    L"lpt0", L"lpt1", L"lpt2",      L"lpt3",      L"lpt4",      L"lpt5",      L"lpt6",      L"lpt7",
    L"lpt8", L"lpt9", L"com\u00B9", L"com\u00B2", L"com\u00B3", L"lpt\u00B9", L"lpt\u00B2", L"lpt\u00B3"};

bool isDevice(std::wstring_view name)
{
    std::wstring stem(name.substr(0, name.find(L'.')));
    while (stem.ends_with(L' '))
        stem.pop_back();
    std::ranges::transform(stem, stem.begin(), lowerCase);
    return std::ranges::find(DeviceNames, std::wstring_view(stem)) != DeviceNames.end();
}

bool isSpecialCharacter(wchar_t c)
{
    return c < 0x20 || std::wstring_view(L"<>:\"|?*").find(c) != std::wstring_view::npos;
}

} // namespace

std::wstring fullPath(const std::filesystem::path& path)
{
    const std::wstring& given = path.native();
    std::wstring full(MAX_PATH, L'\0');
    DWORD length = ::GetFullPathNameW(given.c_str(), MAX_PATH, full.data(), nullptr);
    if (length >= full.size()) {
        full.resize(length);
        length = ::GetFullPathNameW(given.c_str(), length, full.data(), nullptr);
    }
    full.resize(length);
    return full;
}

std::wstring systemPath(const std::filesystem::path& path)
{
    const std::wstring& given = path.native();
    const std::wstring full = fullPath(path);
    if (full.size() < LongPath || full.starts_with(LR"(\\?\)") || full.starts_with(LR"(\\.\)"))
        return given;
    return full.starts_with(LR"(\\)") ? LR"(\\?\UNC)" + full.substr(1) : LR"(\\?\)" + full;
}

bool isMisread(const std::filesystem::path& path)
{
    const std::wstring name = path.filename().native();
    if (path.native().find(L'\0') != std::wstring::npos)
        return true;
    if (name.empty() || name == L"." || name == L"..")
        return false;
    return isDevice(name) || std::ranges::any_of(name, isSpecialCharacter) || name.back() == L'.' ||
           name.back() == L' ';
}

} // namespace tessaly::platform
