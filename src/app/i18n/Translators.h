#pragma once

#include "app/i18n/MyTranslator.h"
#include "lib/i18n/PluralTranslator.h"

namespace tessaly::i18n {
class TranslationManager;
}

namespace thisapp {

/// What makes the application speak the present language of the translations: our texts, those of the
/// toolkit (the buttons of a question, the file dialogs, the menus of fields), the form of numbers, and
/// the direction in which all is laid out.
class Translators
{
public:
    /// The translations must outlive it.
    explicit Translators(const tessaly::i18n::TranslationManager& translations);

    /// To be called again after each change of the language. Every window gets a LanguageChange event
    /// from the event loop.
    void install();

private:
    void loadToolkitTexts();

    const tessaly::i18n::ILocaleProvider& m_locale;
    MyTranslator m_texts;
    tessaly::PluralTranslator m_plurals;
    QTranslator m_toolkitTexts;
};

} // namespace thisapp
