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
    /// Looks for "<base name in lower case>.langs.xml" and the files that it names in the folder.
    TranslationManager(std::wstring folder, std::string_view baseName);

    /// Reads the list. A failure means that only English is there.
    LoadResult load();

    /// Makes the locale the current one. Fails with UnknownLocale, NoTranslation (no enabled entry in
    /// the list), MalformedText for an entry whose file lies outside the folder, or as the file does;
    /// then everything stays as it was. English always succeeds.
    /// Afterwards install the translator again, or send LanguageChange, to retranslate the windows.
    LoadResult use(std::uint32_t lcid);

    /// English and every enabled entry of the list, in its order, each locale once.
    std::vector<Language> languages() const;

    const IStrBundle& bundle() const { return m_bundle; }
    /// Values for "${name}" in translations, from the next use on; must outlive this object.
    void setVariables(const file::IVariablesSetter* variables) { m_variables = variables; }

    internal::Locale locale() const override { return m_locale.get(); }
    std::vector<internal::Translation> translations() const override;

private:
    std::optional<internal::Translation> find(const internal::Locale& locale) const;
    LoadResult loadTexts(const internal::Locale& locale);

    const std::wstring m_folder;
    const std::wstring m_listPath;
    const file::IVariablesSetter* m_variables = nullptr;
    std::unique_ptr<ITranslationListLoader> m_list;
    internal::StrBundleTrMgr m_bundle;
    sync::internal::SafeData<sync::Locker, internal::Locale> m_locale;
};

} // namespace tessaly::i18n
