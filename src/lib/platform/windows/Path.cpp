#include "lib/platform/Path.h"

#include <cstddef>
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

/// Length of the sequence at the start of `text`, and its code point, which may be a surrogate; 0 for none.
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
    return overlong || codePoint > 0x10FFFF ? 0 : length;
}

void appendBytes(std::string& out, unsigned codePoint)
{
    const auto put = [&out](unsigned byte) { out.push_back(static_cast<char>(byte)); };
    if (codePoint < 0x80)
        return put(codePoint);
    if (codePoint < 0x800) {
        put(0xC0U | codePoint >> 6);
    } else if (codePoint < 0x10000) {
        put(0xE0U | codePoint >> 12);
        put(0x80U | (codePoint >> 6 & 0x3FU));
    } else {
        put(0xF0U | codePoint >> 18);
        put(0x80U | (codePoint >> 12 & 0x3FU));
        put(0x80U | (codePoint >> 6 & 0x3FU));
    }
    put(0x80U | (codePoint & 0x3FU));
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
        std::size_t length = decodeOne(native, codePoint);
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
        appendBytes(native, codePoint);
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

wchar_t lowerCase(wchar_t c)
{
    wchar_t lower = c;
    const int mapped =
        ::LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_LOWERCASE, &c, 1, &lower, 1, nullptr, nullptr, 0);
    return mapped == 1 ? lower : c;
}

} // namespace tessaly::platform
