#include "lib/i18n/list/TranslationListLoaderXml.h"

#include "lib/i18n/resource/XmlFile.h"

#include <QXmlStreamAttributes>

#include <utility>

namespace tessaly::i18n::internal {

namespace {

std::uint32_t readFileType(const std::string& text)
{
    static const std::pair<std::string_view, std::uint32_t> Types[] = {
        {"properties", PropertiesFileType}, {"translations", TranslationsFileType}, {"dll", DllFileType}};
    for (const auto& [name, type] : Types)
        if (name == text)
            return type;
    return UnknownFileType;
}

Translation readTranslation(const QXmlStreamAttributes& attributes)
{
    const auto text = [&](const char* name) {
        return attributes.value(QLatin1String(name)).toUtf8().toStdString();
    };
    Translation translation;
    translation.language = text("language");
    translation.country = text("country");
    translation.displayName = text("displayname");
    translation.file = text("file");
    translation.fileType = readFileType(text("filetype"));
    translation.description = text("description");
    translation.disabled = text("disabled");
    return translation;
}

} // namespace

LoadResult TranslationListLoaderXml::load(const std::wstring& path)
{
    XmlFile xml;
    if (!xml.open(path, ListLimits))
        return xml.result();

    std::vector<Translation> translations;
    while (xml.next()) {
        if (xml.reader().isStartElement() && xml.depth() == 1 && !xml.isStart(1, "locales"))
            xml.reject();
        else if (xml.isStart(2, "locale"))
            translations.push_back(readTranslation(xml.reader().attributes()));
    }
    LoadResult result = xml.result();
    if (result.ok())
        m_translations.set(std::move(translations));
    return result;
}

} // namespace tessaly::i18n::internal
