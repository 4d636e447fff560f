#include "lib/i18n/TranslationManager.h"

#include "lib/err/ErrorCodes.h"
#include "lib/i18n/list/TranslationListLoaderFactory.h"
#include "lib/i18n/list/WordTest.h"
#include "lib/i18n/locale/LocaleCatalogue.h"
#include "lib/i18n/resource/LocaleResLoaderFactory.h"
#include "lib/platform/Folder.h"
#include "lib/platform/Path.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
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

TranslationManager::TranslationManager(const std::vector<std::wstring>& folders, std::string_view baseName)
    : m_locale(*findLocale(EnglishLcid))
{
    const std::wstring listName = platform::widePath(asciiLower(baseName)) + L".langs.xml";
    for (const std::wstring& folder : folders)
        m_places.push_back(
            {folder, folder + L'/' + listName, internal::TranslationListLoaderFactory().create()});
}

TranslationManager::TranslationManager(const std::wstring& folder, std::string_view baseName)
    : TranslationManager(std::vector{folder}, baseName)
{
}

LoadResult TranslationManager::load()
{
    LoadResult missing;
    LoadResult wrong;
    bool loaded = false;
    for (const Place& place : m_places) {
        LoadResult result = place.list->load(place.listPath);
        loaded |= result.ok();
        if (platform::isMissing(result.code))
            missing = std::move(result);
        else if (!result.ok() && wrong.ok())
            wrong = std::move(result);
    }
    return !wrong.ok() || loaded ? wrong : missing;
}

LoadResult TranslationManager::use(std::uint32_t lcid)
{
    const Locale* locale = findLocale(lcid);
    if (locale == nullptr)
        return {err::library(err::UnknownLocale), m_places.back().listPath};

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
    const std::string name = english ? english->translation.displayName : std::string();
    add(EnglishLcid, name.empty() ? "English" : name);
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
    std::vector<Translation> all;
    for (const Place& place : m_places)
        std::ranges::move(place.list->translations(), std::back_inserter(all));
    return all;
}

/// The first enabled entry for the locale.
std::optional<TranslationManager::Found> TranslationManager::find(const Locale& locale) const
{
    for (const Place& place : m_places)
        for (const Translation& translation : place.list->translations())
            if (translation.isEnabled() && translation.tag() == locale.tag)
                return Found{place, translation};
    return std::nullopt;
}

LoadResult TranslationManager::loadTexts(const Locale& locale)
{
    const auto found = find(locale);
    if (!found)
        return {err::library(err::NoTranslation), m_places.back().listPath};
    const auto& [place, translation] = *found;
    if (!staysInFolder(translation.file))
        return {err::library(err::MalformedText), place.listPath};

    std::unique_ptr<ILocaleResLoader> loader;
    const ResultCode created = internal::LocaleResLoaderFactory().create(translation.fileType, &loader);
    if (!created.ok())
        return {created, place.listPath};
    return m_bundle.load(*loader, place.folder + L'/' + platform::widePath(translation.file), m_variables);
}

} // namespace tessaly::i18n
