#include "lib/platform/Path.h"

#include "lib/text/Utf8.h"

#include <array>
#include <climits>
#include <cstddef>
#include <cwctype>
#include <locale.h>
#include <strings.h>
#include <unistd.h>

namespace tessaly::platform {

namespace {

constexpr unsigned FirstEscape = 0xDC80;
constexpr unsigned LastEscape = 0xDCFF;

} // namespace

std::wstring widePath(std::string_view native)
{
    std::wstring wide;
    wide.reserve(native.size());
    while (!native.empty()) {
        unsigned codePoint = 0;
        std::size_t length = text::decodeUtf8(native, codePoint);
        if (length == 0) {
            codePoint = FirstEscape - 0x80 + static_cast<unsigned char>(native.front());
            length = 1;
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
    for (const wchar_t c : wide) {
        const auto codePoint = static_cast<unsigned>(c);
        if (codePoint >= FirstEscape && codePoint <= LastEscape)
            native.push_back(static_cast<char>(codePoint - FirstEscape + 0x80));
        else
            text::appendUtf8(native, codePoint);
    }
    return native;
}

std::filesystem::path pathFromWide(std::wstring_view wide)
{
    return nativePath(wide);
}

std::wstring wideText(const std::filesystem::path& path)
{
    return widePath(path.native());
}

std::filesystem::path pathFromNative(std::string_view native)
{
    return native;
}

std::string nativeText(const std::filesystem::path& path)
{
    return path.native();
}

std::filesystem::path absolutePath(const std::filesystem::path& path)
{
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(path, error);
    return error ? path : absolute;
}

std::filesystem::path realFolder(const std::filesystem::path& folder)
{
    std::error_code error;
    const std::filesystem::path real = std::filesystem::canonical(folder, error);
    return error ? absolutePath(folder) : real;
}

std::filesystem::path pathFromUrl(std::string_view host, std::string_view path)
{
    std::array<char, HOST_NAME_MAX + 1> here{};
    ::gethostname(here.data(), here.size() - 1);
    const std::string name(host);
    const bool isHere = name.empty() || ::strcasecmp(name.c_str(), "localhost") == 0 ||
                        ::strcasecmp(name.c_str(), here.data()) == 0;
    return isHere ? path : std::string_view();
}

std::string urlText(const std::filesystem::path& path)
{
    return path.native();
}

wchar_t lowerCase(wchar_t c)
{
    static const locale_t unicode = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    const auto letter = static_cast<wint_t>(c);
    return static_cast<wchar_t>(unicode ? ::towlower_l(letter, unicode) : std::towlower(letter));
}

} // namespace tessaly::platform
