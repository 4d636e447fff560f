#pragma once

#include "app/i18n/TranslationFolders.h"
#include "app/i18n/Translators.h"
#include "lib/i18n/TranslationManager.h"
#include "lib/i18n/locale/LocaleCatalogue.h"

#include <QCoreApplication>

/// Puts the application into the language whose tag (ar-SA) GALLERY_LANGUAGE holds; ends the program when
/// it can't be had.
class GalleryLanguage
{
public:
    GalleryLanguage()
        : m_translations(thisapp::translationFolders(QCoreApplication::applicationDirPath()), "quillet"),
          m_translators(m_translations)
    {
        const std::string tag = qEnvironmentVariable("GALLERY_LANGUAGE", "en-US").toStdString();
        const auto* locale = tessaly::i18n::findLocale(tag);
        static_cast<void>(m_translations.load());
        if (locale == nullptr || !m_translations.use(locale->lcid).ok())
            qFatal("no translation for %s", tag.c_str());
        m_translators.install();
    }

private:
    tessaly::i18n::TranslationManager m_translations;
    thisapp::Translators m_translators;
};
