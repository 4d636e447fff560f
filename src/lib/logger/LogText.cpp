#include "lib/logger/LogText.h"

#include "lib/text/Utf8.h"

namespace tessaly::logger {

namespace {

bool staysOnTheLine(unsigned c)
{
    const bool control = c < 0x20 || (c >= 0x7F && c <= 0x9F);
    const bool separator = c == 0x2028 || c == 0x2029;
    const bool direction = c == 0x061C || c == 0x200E || c == 0x200F || (c >= 0x202A && c <= 0x202E) ||
                           (c >= 0x2066 && c <= 0x2069);
    return !control && !separator && !direction;
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
    while (!text.empty()) {
        unsigned codePoint = 0;
        const std::size_t length = tessaly::text::decodeUtf8(text, codePoint);
        const std::string_view bytes = text.substr(0, length == 0 ? 1 : length);
        if (length > 0 && staysOnTheLine(codePoint))
            line += bytes;
        else
            appendEscaped(line, bytes);
        text.remove_prefix(bytes.size());
    }
}

} // namespace tessaly::logger
