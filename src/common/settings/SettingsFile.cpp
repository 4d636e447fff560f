#include "common/settings/SettingsFile.h"

#include <QFile>
#include <QSaveFile>

#include <string_view>

namespace tessaly {

namespace {

/// The letters and signs that stand for a character of their own behind a backslash.
constexpr std::string_view NamedEscapes = "abfnrtv\"'?\\";

/// Behind the line that begins at `start`. A backslash at its end takes the next one in.
int endOfLine(const QByteArray& text, int start)
{
    for (int i = start; i < text.size(); ++i) {
        if (text[i] == '\\')
            i += text.mid(i + 1, 2) == "\r\n" ? 2 : 1;
        else if (text[i] == '\n')
            return i + 1;
    }
    return text.size();
}

/// Takes the digits of a numeric escape off and appends their character; '?' for one beyond ASCII. Without
/// digits it is none.
void takeNumber(const QByteArray& line, int& i, int base, QByteArray& text)
{
    const QByteArray digits = QByteArray("0123456789abcdefABCDEF").left(base == 8 ? 8 : 22);
    const int start = i;
    while (i < line.size() && digits.contains(line[i]))
        ++i;
    if (i == start)
        return;
    // The reader keeps 16 bits.
    const unsigned code = line.mid(start, i - start).right(base == 8 ? 6 : 4).toUInt(nullptr, base) & 0xFFFFU;
    text += code < 0x80 ? static_cast<char>(code) : '?';
}

bool isLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

/// The line without its quotes and continuations, its numeric escapes resolved. The named ones become '?', as
/// none of their characters is part of what is looked for; all others are dropped, as the reader does.
QByteArray plain(const QByteArray& line)
{
    QByteArray text;
    for (int i = 0; i < line.size();) {
        const char c = line[i++];
        if (c != '\\' && c != '"')
            text += c;
        if (c != '\\' || i == line.size())
            continue;
        const char next = line[i];
        if (next >= '0' && next <= '7') {
            takeNumber(line, i, 8, text);
            continue;
        }
        ++i;
        if (NamedEscapes.find(next) != NamedEscapes.npos)
            text += '?';
        else if (next == 'x')
            takeNumber(line, i, 16, text);
        else if (isLineEnd(next) && i < line.size() && isLineEnd(line[i]) && line[i] != next)
            ++i;
    }
    return text;
}

/// Only what a value, or one of a list, begins with is an object to the reader; elsewhere it is the user's
/// text, which is lost only when it has such a beginning behind one of the signs that may stand before it.
bool holdsSerialisedValue(const QByteArray& line)
{
    const QByteArray before = "=, \t\v\f\r\n";
    const QByteArray text = plain(line);
    for (const char* object : {"@Variant(", "@DateTime("})
        for (int at = text.indexOf(object); at >= 0; at = text.indexOf(object, at + 1))
            if (at == 0 || before.contains(text[at - 1]))
                return true;
    return false;
}

} // namespace

int removeSerialisedValues(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray text = file.readAll();
    if (file.error() != QFile::NoError)
        return -1; // what was not read would be lost
    QByteArray kept;
    int removed = 0;
    for (int start = 0, end = 0; start < text.size(); start = end) {
        end = endOfLine(text, start);
        if (const QByteArray line = text.mid(start, end - start); holdsSerialisedValue(line))
            ++removed;
        else
            kept += line;
    }
    if (removed == 0)
        return 0;
    QSaveFile cleaned(path);
    cleaned.setDirectWriteFallback(true);
    // Without the flush, commit() would put a torn file in place: it overlooks what fails then.
    const bool written = cleaned.open(QIODevice::WriteOnly) && cleaned.write(kept) == kept.size() &&
                         cleaned.flush() && cleaned.commit();
    return written ? removed : -1;
}

} // namespace tessaly
