#include "ui/password/HexCheck.h"

#include "lib/secret/Hex.h"

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>

namespace thisapp {

namespace {

struct HexCheck
{
    Q_DECLARE_TR_FUNCTIONS(HexCheck)
};

struct SProblemTexts
{
    const char* empty;
    const char* notHex;
    const char* wrongSize;
};

constexpr SProblemTexts IvTexts{
    QT_TRANSLATE_NOOP("HexCheck", "Empty IV."),
    QT_TRANSLATE_NOOP("HexCheck", "Invalid IV: invalid hexadecimal characters."),
    QT_TRANSLATE_NOOP("HexCheck", "Invalid IV size: entered %1 bytes."),
};
constexpr SProblemTexts KeyTexts{
    QT_TRANSLATE_NOOP("HexCheck", "Empty key."),
    QT_TRANSLATE_NOOP("HexCheck", "Invalid key: invalid hexadecimal characters."),
    QT_TRANSLATE_NOOP("HexCheck", "Invalid key size: entered %1 bytes."),
};

bool isHexDigit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

bool isBlank(std::string_view text)
{
    return text.find_first_not_of(" \t\n\v\f\r") == std::string_view::npos;
}

} // namespace

SHexCheck checkHex(HexInput input, const tessaly::SecretText& text, std::uint32_t expectedLength)
{
    const SProblemTexts& texts = input == HexInput::Iv ? IvTexts : KeyTexts;
    SHexCheck check;
    check.byteCount = static_cast<std::uint32_t>(std::ranges::count_if(text.view(), isHexDigit) / 2);
    check.bytes = tessaly::decodeHex(text.view());
    if (isBlank(text.view()))
        check.problem = HexCheck::tr(texts.empty);
    else if (!check.bytes)
        check.problem = HexCheck::tr(texts.notHex);
    else if (check.bytes->size() != expectedLength)
        check.problem = HexCheck::tr(texts.wrongSize).arg(QLocale().toString(check.byteCount));
    return check;
}

} // namespace thisapp
