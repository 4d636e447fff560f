#include "app/i18n/Translators.h"

#include "app/i18n/ToolkitLocale.h"
#include "lib/i18n/TranslationManager.h"

#include <QGuiApplication>
#include <QLibraryInfo>

namespace thisapp {

Translators::Translators(const tessaly::i18n::TranslationManager& translations)
    : m_locale(translations), m_texts(translations.bundle()), m_plurals(translations.bundle(), translations)
{
}

void Translators::install()
{
    // The last one installed is asked first, and MyTranslator leaves nothing to those before it.
    QTranslator* const all[] = {&m_texts, &m_plurals, &m_toolkitTexts};
    for (QTranslator* translator : all)
        QCoreApplication::removeTranslator(translator);
    loadToolkitTexts();
    const QLocale locale = toolkitLocale(m_locale.locale());
    QLocale::setDefault(locale);
    QGuiApplication::setLayoutDirection(locale.textDirection());
    for (QTranslator* translator : all)
        QCoreApplication::installTranslator(translator);
}

/// The toolkit's own texts are English, so there is nothing to load for it; nor need its translations be
/// there.
void Translators::loadToolkitTexts()
{
    const QLocale locale = toolkitLocale(m_locale.locale());
    const QString folder = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
    const bool loaded = locale.language() != QLocale::English &&
                        m_toolkitTexts.load(locale, QStringLiteral("qtbase"), QStringLiteral("_"), folder);
    if (!loaded)
        static_cast<void>(m_toolkitTexts.load(QString()));
}

} // namespace thisapp
