#include "lib/text/Utf8.h"

namespace tessaly::text {

std::size_t decodeUtf8(std::string_view text, unsigned& codePoint, Surrogates surrogates)
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
    const bool refused = surrogates == Surrogates::Refused && codePoint >= 0xD800 && codePoint <= 0xDFFF;
    return overlong || refused || codePoint > 0x10FFFF ? 0 : length;
}

void appendUtf8(std::string& text, unsigned codePoint)
{
    const auto put = [&text](unsigned byte) { text.push_back(static_cast<char>(byte)); };
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

} // namespace tessaly::text
