#include "common/path/PathText.h"

#include "lib/platform/Path.h"

namespace thisapp {

using namespace tessaly;

namespace {

/// A code point beyond the basic plane takes two units of a QString, but one wide character.
constexpr bool needsPair(wchar_t c)
{
    return static_cast<unsigned long>(c) > 0xFFFF;
}

} // namespace

QString pathText(const std::wstring& path)
{
    QString text;
    text.reserve(static_cast<int>(path.size()));
    for (const wchar_t c : path) {
        const auto codePoint = static_cast<uint>(c);
        if (needsPair(c))
            text += QChar(QChar::highSurrogate(codePoint));
        text += QChar(needsPair(c) ? QChar::lowSurrogate(codePoint) : static_cast<ushort>(codePoint));
    }
    return text;
}

QString pathText(const std::string& native)
{
    return pathText(platform::widePath(native));
}

std::wstring widePath(const QString& text)
{
    std::wstring path;
    path.reserve(static_cast<std::size_t>(text.size()));
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (sizeof(wchar_t) > 2 && c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            path.push_back(static_cast<wchar_t>(QChar::surrogateToUcs4(c, text[++i])));
        else
            path.push_back(static_cast<wchar_t>(c.unicode()));
    }
    return path;
}

std::string nativePath(const QString& text)
{
    return platform::nativePath(widePath(text));
}

} // namespace thisapp
