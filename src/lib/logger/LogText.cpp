#include "lib/logger/LogText.h"

#include "lib/platform/Path.h"

#include <algorithm>

namespace tessaly::logger {

namespace {

bool staysOnTheLine(wchar_t c)
{
    const bool control = c < 0x20 || (c >= 0x7F && c <= 0x9F);
    const bool separator = c == 0x2028 || c == 0x2029;
    const bool direction = c == 0x061C || c == 0x200E || c == 0x200F || (c >= 0x202A && c <= 0x202E) ||
                           (c >= 0x2066 && c <= 0x2069);
    const bool malformedByte = c >= 0xDC80 && c <= 0xDCFF; // as widePath carries it
    return !control && !separator && !direction && !malformedByte;
}

void appendEscaped(std::string& line, std::string_view bytes)
{
    if (bytes == "\n") {
        line += "\\n";
        return;
    }
    constexpr char digits[] = "0123456789ABCDEF";
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        line += {'\\', 'x', digits[byte >> 4], digits[byte & 0xFU]};
    }
}

} // namespace

void appendOneLine(std::string& line, std::string_view text)
{
    const std::wstring wide = platform::widePath(text);
    for (auto at = wide.begin(); at != wide.end();) {
        const auto end = std::find_if_not(at, wide.end(), staysOnTheLine);
        line += platform::nativePath({at, end});
        if (end == wide.end())
            return;
        appendEscaped(line, platform::nativePath({end, end + 1}));
        at = end + 1;
    }
}

} // namespace tessaly::logger
