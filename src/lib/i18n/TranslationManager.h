#pragma once

#include "lib/file/IVariablesSetter.h"
#include "lib/i18n/StrBundleTrMgr.h"
#include "lib/i18n/list/ITranslationListLoader.h"
#include "lib/i18n/list/ITranslationListProvider.h"
#include "lib/i18n/locale/ILocaleProvider.h"
#include "lib/i18n/locale/Language.h"
#include "lib/sync/Locker.h"
#include "lib/sync/SafeData.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessaly::i18n {

/// Finds, loads and keeps the translation of the user interface. English is built in: it needs no file,
/// as the source texts are English. Any thread may look texts up and ask for the locale while another
/// one loads; load and use are for one thread at a time.
class TranslationManager final : public ILocaleProvider, public ITranslationListProvider
{
public:
    /// Looks for "<base name in lower case>.langs.xml" in each folder, and for the files that it names
    /// beside it. Of two entries for a locale, that of the earlier folder counts.
    TranslationManager(const std::vector<std::wstring>& folders, std::string_view baseName);
    TranslationManager(const std::wstring& folder, std::string_view baseName);

    /// Reads the lists. Fails with what is wrong with one, or when there is none; what could be read is
    /// there all the same.
    LoadResult load();

    /// Makes the locale the current one. Fails with UnknownLocale, NoTranslation (no enabled entry in
    /// the list), MalformedText for an entry whose file lies outside the folder, or as the file does;
    /// then everything stays as it was. English always succeeds.
    /// Afterwards install the translator again, or send LanguageChange, to retranslate the windows.
    LoadResult use(std::uint32_t lcid);

    /// English and every enabled entry of the lists, in their order, each locale once.
    std::vector<Language> languages() const;

    const IStrBundle& bundle() const { return m_bundle; }
    /// Values for "${name}" in translations, from the next use on; must outlive this object.
    void setVariables(const file::IVariablesSetter* variables) { m_variables = variables; }

    internal::Locale locale() const override { return m_locale.get(); }
    std::vector<internal::Translation> translations() const override;

private:
    struct Place
    {
        std::wstring folder;
        std::wstring listPath;
        std::unique_ptr<ITranslationListLoader> list;
    };
    struct Found
    {
        const Place& place;
        internal::Translation translation;
    };

    std::optional<Found> find(const internal::Locale& locale) const;
    LoadResult loadTexts(const internal::Locale& locale);

    std::vector<Place> m_places; ///< never empty; the last is the program's own
    const file::IVariablesSetter* m_variables = nullptr;
    internal::StrBundleTrMgr m_bundle;
    sync::internal::SafeData<sync::Locker, internal::Locale> m_locale;
};

} // namespace tessaly::i18n
