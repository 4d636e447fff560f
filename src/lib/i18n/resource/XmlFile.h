#pragma once

#include "lib/i18n/resource/TranslationFile.h"

#include <QXmlStreamReader>

#include <string>

namespace tessaly::i18n::internal {

/// A UTF-8 XML file read token by token within bounds: its size, that of a single tag, the depth of its
/// elements, and no declarations of its own (entities, attributes) in its document type. Use: open, then
/// while (next()) look at reader(), then result.
class XmlFile final
{
public:
    [[nodiscard]] bool open(const std::wstring& path, io::SFileOptions options);
    /// Steps to the next token; false at the end of the document and when it is malformed.
    bool next();
    /// Of the opening when that failed; else MalformedText unless the whole document was well-formed.
    LoadResult result() const;

    const QXmlStreamReader& reader() const { return m_reader; }
    /// How many elements are open, the current start element or end element included.
    int depth() const { return m_depth; }
    bool isStart(int depth, const char* name) const;
    bool isEnd(int depth, const char* name) const;
    /// The document does not hold what it should: next and result fail from now on.
    void reject();

private:
    LoadResult m_opened;
    QXmlStreamReader m_reader;
    int m_depth = 0;
    bool m_wasEnd = false;
};

} // namespace tessaly::i18n::internal
