#include "common/settings/SettingsFile.h"

#include <QFile>
#include <QSaveFile>

namespace tessaly {

namespace {

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

/// Takes the digits of a numeric escape off; '?' for a character beyond ASCII.
char takeNumber(const QByteArray& line, int& i, int base)
{
    const QByteArray digits = QByteArray("0123456789abcdefABCDEF").left(base == 8 ? 8 : 22);
    const int start = i;
    while (i < line.size() && digits.contains(line[i]))
        ++i;
    // The reader keeps 16 bits.
    const unsigned code = line.mid(start, i - start).right(base == 8 ? 6 : 4).toUInt(nullptr, base) & 0xFFFFU;
    return code < 0x80 ? static_cast<char>(code) : '?';
}

/// The line without its quotes and continuations, its escapes resolved.
QByteArray plain(QByteArray line)
{
    line.replace("\r\n", "\n");
    QByteArray text;
    for (int i = 0; i < line.size();) {
        const char c = line[i++];
        const char next = i < line.size() ? line[i] : '\n';
        if (c != '\\' && c != '"')
            text += c;
        else if (c == '\\' && next == 'x')
            text += takeNumber(line, ++i, 16);
        else if (c == '\\' && next >= '0' && next <= '7')
            text += takeNumber(line, i, 8);
        else if (c == '\\' && ++i > 0 && next != '\n' && next != '\r')
            text += next;
    }
    return text;
}

bool holdsSerialisedValue(const QByteArray& line)
{
    const QByteArray text = plain(line);
    return text.contains("@Variant(") || text.contains("@DateTime(");
}

} // namespace

int removeSerialisedValues(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray text = file.readAll();
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
