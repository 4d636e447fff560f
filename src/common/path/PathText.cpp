#include "common/path/PathText.h"

#include "lib/platform/Path.h"

namespace thisapp {

using namespace tessaly;

namespace {

/// A code point beyond the basic plane takes two units of a QString, but one wide character.
constexpr bool needsPair(uint codePoint)
{
    return codePoint > 0xFFFF;
}

} // namespace

QString pathText(const std::filesystem::path& path)
{
    const std::wstring wide = platform::wideText(path);
    QString text;
    text.reserve(static_cast<int>(wide.size()));
    for (const wchar_t c : wide) {
        const auto codePoint = static_cast<uint>(c);
        if (needsPair(codePoint))
            text += QChar(QChar::highSurrogate(codePoint));
        text += QChar(needsPair(codePoint) ? QChar::lowSurrogate(codePoint) : static_cast<ushort>(codePoint));
    }
    return text;
}

std::filesystem::path textPath(const QString& text)
{
    std::wstring wide;
    wide.reserve(static_cast<std::size_t>(text.size()));
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (sizeof(wchar_t) > 2 && c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            wide.push_back(static_cast<wchar_t>(QChar::surrogateToUcs4(c, text[++i])));
        else
            wide.push_back(static_cast<wchar_t>(c.unicode()));
    }
    return platform::pathFromWide(wide);
}

} // namespace thisapp
