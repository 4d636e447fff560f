#include "lib/platform/Path.h"

#include <cstddef>
#include <cwctype>
#include <locale.h>

namespace tessaly::platform {

namespace {

constexpr unsigned FirstEscape = 0xDC80;
constexpr unsigned LastEscape = 0xDCFF;

/// Length of the well-formed sequence (RFC 3629) at the start of `text`, and its code point; 0 for none.
std::size_t decodeOne(std::string_view text, unsigned& codePoint)
{
    const auto byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned lead = byte(0);
    const std::size_t length = lead < 0x80   ? 1
                               : lead < 0xC2 ? 0
                               : lead < 0xE0 ? 2
                               : lead < 0xF0 ? 3
                               : lead < 0xF5 ? 4
                                             : 0;
    if (length == 0 || length > text.size())
        return 0;
    codePoint = length == 1 ? lead : lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0U) != 0x80U)
            return 0;
        codePoint = codePoint << 6 | (byte(i) & 0x3FU);
    }
    const bool overlong = (length == 3 && codePoint < 0x800) || (length == 4 && codePoint < 0x10000);
    const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    return overlong || surrogate || codePoint > 0x10FFFF ? 0 : length;
}

void appendUtf8(std::string& out, unsigned codePoint)
{
    const auto put = [&out](unsigned byte) { out.push_back(static_cast<char>(byte)); };
    if (codePoint < 0x80) {
        put(codePoint);
        return;
    }
    if (codePoint < 0x800) {
        put(0xC0U | codePoint >> 6);
    } else {
        if (codePoint < 0x10000) {
            put(0xE0U | codePoint >> 12);
        } else {
            put(0xF0U | codePoint >> 18);
            put(0x80U | (codePoint >> 12 & 0x3FU));
        }
        put(0x80U | (codePoint >> 6 & 0x3FU));
    }
    put(0x80U | (codePoint & 0x3FU));
}

} // namespace

std::wstring widePath(std::string_view native)
{
    std::wstring wide;
    wide.reserve(native.size());
    while (!native.empty()) {
        unsigned codePoint = 0;
        std::size_t length = decodeOne(native, codePoint);
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
            appendUtf8(native, codePoint);
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

wchar_t lowerCase(wchar_t c)
{
    static const locale_t unicode = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    const auto letter = static_cast<wint_t>(c);
    return static_cast<wchar_t>(unicode ? ::towlower_l(letter, unicode) : std::towlower(letter));
}

} // namespace tessaly::platform
