#include "lib/i18n/resource/XmlFile.h"

#include "lib/err/ErrorCodes.h"
#include "lib/file/Utf8FileReader.h"

#include <QString>
#include <QTextCodec>

#include <algorithm>

namespace tessaly::i18n::internal {

namespace {

constexpr int MaxDepth = 32;

/// Characters. Reading a tag takes time in the square of its attributes.
constexpr int MaxTagLength = 4096;

/// Where a tag ends that begins at `start`; -1 when that is too far away.
int endOfTag(const QString& text, int start)
{
    QChar quote;
    const int limit = std::min(start + MaxTagLength, text.size());
    for (int i = start; i < limit; ++i) {
        const QChar c = text[i];
        if (quote.isNull() && c == QLatin1Char('>'))
            return i;
        if (c == quote)
            quote = QChar();
        else if (quote.isNull() && (c == QLatin1Char('"') || c == QLatin1Char('\'')))
            quote = c;
    }
    return limit == text.size() ? limit : -1;
}

/// Where a tag begins that is too long; -1 without one.
int findLongTag(const QString& text)
{
    static constexpr const char* Passages[][2] = {{"<!--", "-->"}, {"<![CDATA[", "]]>"}};
    for (int start = text.indexOf(QLatin1Char('<')), end = 0; start >= 0;
         start = text.indexOf(QLatin1Char('<'), end)) {
        end = -1;
        for (const auto& [opening, closing] : Passages)
            if (text.midRef(start).startsWith(QLatin1String(opening)))
                end = text.indexOf(QLatin1String(closing), start);
        if (end < 0)
            end = endOfTag(text, start);
        if (end < 0)
            return start;
    }
    return -1;
}

/// Declared entities could make a small file a huge text, declared attributes an endless one.
bool hasDeclarations(QStringRef documentType)
{
    const QLatin1String opening("<!");
    const int start = documentType.indexOf(opening);
    for (int at = start; (at = documentType.indexOf(opening, at + 1)) >= 0;)
        if (!documentType.mid(at).startsWith(QLatin1String("<!--")))
            return true;
    return false;
}

/// False when the bytes are not UTF-8.
bool decode(const std::string& bytes, QString& text)
{
    QTextCodec::ConverterState state;
    text = QTextCodec::codecForName("UTF-8")->toUnicode(bytes.data(), static_cast<int>(bytes.size()), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

} // namespace

bool XmlFile::open(const std::wstring& path, io::SFileOptions options)
{
    std::string bytes;
    m_opened = {file::Utf8FileReader(options).read(path, bytes), path};
    if (!m_opened.ok())
        return false;
    QString text;
    if (!decode(bytes, text))
        m_opened.code = err::library(err::MalformedText);
    else if (const int longTag = findLongTag(text); longTag >= 0)
        m_opened = {err::library(err::MalformedText), path,
                    text.leftRef(longTag).count(QLatin1Char('\n')) + 1};
    m_depth = 0;
    m_wasEnd = false;
    m_reader.clear();
    m_reader.addData(text);
    return m_opened.ok();
}

bool XmlFile::next()
{
    if (m_reader.atEnd())
        return false;
    if (m_wasEnd)
        --m_depth;
    const auto token = m_reader.readNext();
    m_wasEnd = token == QXmlStreamReader::EndElement;
    if (token == QXmlStreamReader::StartElement && ++m_depth > MaxDepth)
        reject();
    if (token == QXmlStreamReader::DTD && hasDeclarations(m_reader.text()))
        reject();
    return !m_reader.hasError() && token != QXmlStreamReader::EndDocument;
}

LoadResult XmlFile::result() const
{
    const bool whole = !m_reader.hasError() && m_reader.atEnd();
    if (!m_opened.ok() || whole)
        return m_opened;
    return {err::library(err::MalformedText), m_opened.file, m_reader.lineNumber()};
}

bool XmlFile::isStart(int depth, const char* name) const
{
    return m_reader.isStartElement() && m_depth == depth && m_reader.name() == QLatin1String(name);
}

bool XmlFile::isEnd(int depth, const char* name) const
{
    return m_reader.isEndElement() && m_depth == depth && m_reader.name() == QLatin1String(name);
}

void XmlFile::reject()
{
    m_reader.raiseError();
}

} // namespace tessaly::i18n::internal
