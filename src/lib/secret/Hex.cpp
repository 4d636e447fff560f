#include "lib/secret/Hex.h"

namespace tessaly {

namespace {

bool isSpace(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

int digitValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

} // namespace

std::optional<SecretBytes> decodeHex(std::string_view text)
{
    SecretBytes bytes;
    bytes.reserve(text.size() / 2);
    int high = -1;
    for (const char c : text) {
        if (isSpace(c))
            continue;
        const int value = digitValue(c);
        if (value < 0)
            return std::nullopt;
        if (high < 0) {
            high = value;
        } else {
            bytes.push_back(static_cast<std::uint8_t>(high * 16 + value));
            high = -1;
        }
    }
    if (high >= 0)
        return std::nullopt;
    return bytes;
}

SecretText encodeHex(std::span<const std::uint8_t> bytes)
{
    constexpr std::string_view Digits = "0123456789ABCDEF";
    SecretBytes text;
    text.reserve(bytes.size() * 2 + bytes.size() / 4);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (i > 0 && i % 4 == 0)
            text.push_back(' ');
        text.push_back(static_cast<std::uint8_t>(Digits[bytes[i] >> 4U]));
        text.push_back(static_cast<std::uint8_t>(Digits[bytes[i] & 0xFU]));
    }
    return SecretText({reinterpret_cast<const char*>(text.data()), text.size()});
}

} // namespace tessaly
