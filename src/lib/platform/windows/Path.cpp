#include "lib/platform/Path.h"

#include "lib/platform/windows/SystemPath.h"
#include "lib/text/Utf8.h"

#include <cstddef>
#include <system_error>
#include <windows.h>

namespace tessaly::platform {

namespace {

constexpr unsigned Replacement = 0xFFFD;

constexpr bool isHighSurrogate(unsigned unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

constexpr bool isLowSurrogate(unsigned unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

} // namespace

// The system's names are units of 16 bits that need not be UTF-16. A lone surrogate becomes three bytes as
// any other unit does, so every name survives.

std::wstring widePath(std::string_view native)
{
    std::wstring wide;
    wide.reserve(native.size());
    while (!native.empty()) {
        unsigned codePoint = 0;
        std::size_t length = text::decodeUtf8(native, codePoint, text::Surrogates::Taken);
        if (length == 0) {
            codePoint = Replacement;
            length = 1;
        }
        if (codePoint > 0xFFFF) {
            wide.push_back(static_cast<wchar_t>(0xD800 + ((codePoint - 0x10000) >> 10)));
            codePoint = 0xDC00 + (codePoint & 0x3FFU);
        }
        wide.push_back(static_cast<wchar_t>(codePoint));
        native.remove_prefix(length);
    }
    return wide;
}

std::string nativePath(std::wstring_view wide)
{
    std::string native;
    native.reserve(wide.size());
    for (std::size_t i = 0; i < wide.size(); ++i) {
        unsigned codePoint = wide[i];
        if (isHighSurrogate(codePoint) && i + 1 < wide.size() && isLowSurrogate(wide[i + 1]))
            codePoint = 0x10000 + ((codePoint & 0x3FFU) << 10 | (wide[++i] & 0x3FFU));
        text::appendUtf8(native, codePoint);
    }
    return native;
}

std::filesystem::path pathFromWide(std::wstring_view wide)
{
    return wide;
}

std::wstring wideText(const std::filesystem::path& path)
{
    return path.native();
}

std::filesystem::path pathFromNative(std::string_view native)
{
    return widePath(native);
}

std::string nativeText(const std::filesystem::path& path)
{
    return nativePath(path.native());
}

std::filesystem::path absolutePath(const std::filesystem::path& path)
{
    // The standard library takes a share for a folder of the drive.
    const std::wstring start = path.native().substr(0, 2);
    if (start.find_first_not_of(L"\\/") == std::wstring::npos && start.size() == 2)
        return path;
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(path, error);
    return error ? path : absolute;
}

std::filesystem::path realFolder(const std::filesystem::path& folder)
{
    const std::wstring full = fullPath(folder);
    return full.empty() ? folder : std::filesystem::path(full);
}

std::filesystem::path pathFromUrl(std::string_view host, std::string_view path)
{
    const bool isShare = !host.empty() && host != "localhost";
    if (isShare)
        return std::filesystem::path(L"//" + widePath(host) + widePath(path)).make_preferred();
    const bool hasDrive = path.size() > 2 && path[0] == '/' && path[2] == ':';
    return hasDrive ? pathFromNative(path.substr(1)).make_preferred() : std::filesystem::path();
}

std::string urlText(const std::filesystem::path& path)
{
    const std::string text = nativePath(path.generic_wstring());
    return text.starts_with("//") ? text.substr(2) : '/' + text;
}

wchar_t lowerCase(wchar_t c)
{
    wchar_t lower = c;
    const int mapped =
        ::LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_LOWERCASE, &c, 1, &lower, 1, nullptr, nullptr, 0);
    return mapped == 1 ? lower : c;
}

} // namespace tessaly::platform
