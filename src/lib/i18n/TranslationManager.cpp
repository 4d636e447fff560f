#include "lib/i18n/TranslationManager.h"

#include "lib/err/ErrorCodes.h"
#include "lib/i18n/list/TranslationListLoaderFactory.h"
#include "lib/i18n/list/WordTest.h"
#include "lib/i18n/locale/LocaleCatalogue.h"
#include "lib/i18n/resource/LocaleResLoaderFactory.h"
#include "lib/platform/Path.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace tessaly::i18n {

namespace {

using internal::Locale;
using internal::Translation;

/// A link in the folder may lead elsewhere; the list's text may not.
bool staysInFolder(const std::filesystem::path& file)
{
    return !file.empty() && !file.is_absolute() && std::ranges::find(file, "..") == file.end();
}

} // namespace

TranslationManager::TranslationManager(std::wstring folder, std::string_view baseName)
    : m_folder(std::move(folder)),
      m_listPath(m_folder + L'/' + platform::widePath(asciiLower(baseName)) + L".langs.xml"),
      m_list(internal::TranslationListLoaderFactory().create()),
      m_locale(*findLocale(EnglishLcid))
{
}

LoadResult TranslationManager::load()
{
    return m_list->load(m_listPath);
}

LoadResult TranslationManager::use(std::uint32_t lcid)
{
    const Locale* locale = findLocale(lcid);
    if (locale == nullptr)
        return {err::library(err::UnknownLocale), m_listPath};

    LoadResult result = loadTexts(*locale);
    if (!result.ok() && lcid != EnglishLcid)
        return result;
    if (!result.ok())
        m_bundle.clear();
    m_locale.set(*locale);
    return {};
}

std::vector<Language> TranslationManager::languages() const
{
    const Locale current = locale();
    std::vector<Language> languages;
    const auto add = [&](std::uint32_t lcid, const std::string& displayName) {
        if (std::ranges::find(languages, lcid, &Language::lcid) == languages.end())
            languages.push_back({lcid, displayName});
    };

    const auto english = find(*findLocale(EnglishLcid));
    add(EnglishLcid, english && !english->displayName.empty() ? english->displayName : "English");
    for (const Translation& translation : translations()) {
        // A tag may stand for two locales, told apart by nothing in the list: offer the one in use.
        const Locale* row = translation.tag() == current.tag ? &current : findLocale(translation.tag());
        if (row == nullptr || !translation.isEnabled())
            continue;
        add(row->lcid,
            translation.displayName.empty() ? std::string(row->displayName) : translation.displayName);
    }
    return languages;
}

std::vector<Translation> TranslationManager::translations() const
{
    return m_list->translations();
}

/// The first enabled entry for the locale.
std::optional<Translation> TranslationManager::find(const Locale& locale) const
{
    for (Translation& translation : translations())
        if (translation.isEnabled() && translation.tag() == locale.tag)
            return std::move(translation);
    return std::nullopt;
}

LoadResult TranslationManager::loadTexts(const Locale& locale)
{
    const auto translation = find(locale);
    if (!translation)
        return {err::library(err::NoTranslation), m_listPath};
    if (!staysInFolder(translation->file))
        return {err::library(err::MalformedText), m_listPath};

    std::unique_ptr<ILocaleResLoader> loader;
    const ResultCode created = internal::LocaleResLoaderFactory().create(translation->fileType, &loader);
    if (!created.ok())
        return {created, m_listPath};
    return m_bundle.load(*loader, m_folder + L'/' + platform::widePath(translation->file), m_variables);
}

} // namespace tessaly::i18n
