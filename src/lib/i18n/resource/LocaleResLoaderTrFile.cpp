#include "lib/i18n/resource/LocaleResLoaderTrFile.h"

#include "lib/file/Variables.h"
#include "lib/i18n/PluralForms.h"
#include "lib/i18n/resource/XmlFile.h"

#include <QString>

#include <vector>

namespace tessaly::i18n::internal {

namespace {

// Where the elements stand: <TS><context><name/><message><source/><translation/></message></context></TS>
enum Depth { Root = 1, Context, ContextName, Message = ContextName, Text, Form };

/// No language has more plural forms. Each is handed over with its source text: without a bound a small file
/// could fill the memory.
constexpr std::size_t MostForms = 6;

/// Characters; contexts are names of classes, and handed over with each of their texts.
constexpr int MostOfContext = 1000;

/// Follows the tokens of the file and hands over each finished message at its end.
class MessageReader
{
public:
    explicit MessageReader(ILocaleResLoaderCallback& callback) : m_callback(callback) {}

    void onToken(XmlFile& xml)
    {
        if (m_forms.size() > MostForms || m_context.size() > MostOfContext)
            xml.reject();
        else if (xml.reader().isStartElement())
            onStart(xml);
        else if (xml.reader().isCharacters() && m_target != nullptr)
            m_target->append(xml.reader().text());
        else if (xml.reader().isEndElement())
            onEnd(xml);
    }

private:
    void onStart(XmlFile& xml)
    {
        const auto attributes = xml.reader().attributes();
        if (xml.depth() == Root && !xml.isStart(Root, "TS"))
            xml.reject();
        else if (xml.isStart(Context, "context"))
            m_context.clear();
        else if (xml.isStart(Message, "message"))
            startMessage();
        else if (xml.isStart(ContextName, "name"))
            m_target = &m_context;
        else if (xml.isStart(Text, "source"))
            m_target = &m_source;
        else if (xml.isStart(Text, "translation"))
            startTranslation(attributes);
        else if (m_isFinished && (xml.isStart(Form, "numerusform") || xml.isStart(Form, "lengthvariant")))
            startForm();
        else if (m_target != nullptr && isByte(xml))
            appendByte(attributes.value(QLatin1String("value")));
    }

    void onEnd(const XmlFile& xml)
    {
        if (!isByte(xml))
            m_target = nullptr;
        if (m_isFinished && xml.isEnd(Form, "numerusform"))
            m_forms.push_back(m_translation);
        if (xml.isEnd(Message, "message") && !m_translation.isEmpty())
            handOver();
    }

    void startMessage()
    {
        m_source.clear();
        m_translation.clear();
        m_forms.clear();
        m_isFinished = false;
    }

    void startTranslation(const QXmlStreamAttributes& attributes)
    {
        // A type says unfinished, vanished or obsolete.
        m_isFinished = !attributes.hasAttribute(QLatin1String("type"));
        if (m_isFinished)
            m_target = &m_translation;
    }

    void startForm()
    {
        m_translation.clear();
        m_target = &m_translation;
    }

    static bool isByte(const XmlFile& xml) { return xml.reader().name() == QLatin1String("byte"); }

    /// A character that XML cannot hold is written <byte value="x1b"/>.
    void appendByte(QStringRef value)
    {
        const bool isHex = value.startsWith(QLatin1Char('x'));
        const auto code = value.mid(isHex ? 1 : 0).toUShort(nullptr, isHex ? 16 : 10);
        if (code != 0)
            m_target->append(QChar(code));
    }

    void handOver()
    {
        const std::string source = m_source.toStdString();
        handOver(source, m_translation);
        for (std::size_t form = 0; form < m_forms.size(); ++form)
            if (!m_forms[form].isEmpty())
                handOver(formKey(source, form), m_forms[form]);
    }

    void handOver(const std::string& source, const QString& text)
    {
        const std::string translation = text.toStdString();
        const auto* variables = m_callback.variables();
        m_callback.onItem(m_context.toStdString(), source,
                          variables != nullptr ? file::expandVariables(translation, *variables)
                                               : translation);
    }

    ILocaleResLoaderCallback& m_callback;
    QString m_context;
    QString m_source;
    QString m_translation;
    std::vector<QString> m_forms; ///< of a text with a number
    bool m_isFinished = false;
    QString* m_target = nullptr; ///< where the characters go, null outside the texts of interest
};

} // namespace

LoadResult LocaleResLoaderTrFile::load(const std::wstring& path, ILocaleResLoaderCallback& callback) const
{
    XmlFile xml;
    MessageReader messages(callback);
    if (xml.open(path, ResourceLimits))
        while (xml.next())
            messages.onToken(xml);
    return xml.result();
}

} // namespace tessaly::i18n::internal
