#include "lib/i18n/resource/XmlFile.h"

#include "lib/err/ErrorCodes.h"
#include "lib/file/Utf8FileReader.h"

#include <QString>
#include <QTextCodec>

namespace tessaly::i18n::internal {

namespace {

constexpr int MaxDepth = 32;

/// False when the bytes are not UTF-8.
bool decode(const std::string& bytes, QString& text)
{
    QTextCodec::ConverterState state;
    text = QTextCodec::codecForName("UTF-8")->toUnicode(bytes.data(), static_cast<int>(bytes.size()), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

} // namespace

ResultCode XmlFile::open(const std::wstring& path, io::SFileOptions options)
{
    std::string bytes;
    const ResultCode result = file::Utf8FileReader(options).read(path, bytes);
    if (!result.ok())
        return result;
    QString text;
    if (!decode(bytes, text))
        return err::library(err::MalformedText);
    m_depth = 0;
    m_wasEnd = false;
    m_reader.clear();
    m_reader.addData(text);
    return {};
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
    // Declared entities could make a small file a huge text, declared attributes an endless one.
    if (token == QXmlStreamReader::DTD && m_reader.text().contains(QLatin1Char('[')))
        reject();
    return !m_reader.hasError() && token != QXmlStreamReader::EndDocument;
}

ResultCode XmlFile::result() const
{
    return m_reader.hasError() || !m_reader.atEnd() ? err::library(err::MalformedText) : ResultCode();
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
