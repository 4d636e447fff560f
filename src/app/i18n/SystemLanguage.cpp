#include "app/i18n/SystemLanguage.h"

#include "app/i18n/ToolkitLocale.h"
#include "lib/i18n/locale/LocaleCatalogue.h"

#include <optional>

namespace thisapp {

using namespace tessaly;

namespace {

std::optional<std::uint32_t> offeredFor(const QLocale& wanted, const std::vector<i18n::Language>& offered)
{
    std::optional<std::uint32_t> elsewhere;
    for (const i18n::Language& language : offered) {
        const QLocale candidate = toolkitLocale(*i18n::findLocale(language.lcid));
        if (candidate.language() != wanted.language() || candidate.script() != wanted.script())
            continue;
        if (candidate.country() == wanted.country())
            return language.lcid;
        if (!elsewhere)
            elsewhere = language.lcid;
    }
    return elsewhere;
}

} // namespace

std::uint32_t firstOffered(const QStringList& wanted, const std::vector<i18n::Language>& offered)
{
    for (const QString& name : wanted) {
        const QLocale locale(name);
        if (locale.language() == QLocale::C) // not known to the toolkit
            continue;
        if (const auto lcid = offeredFor(locale, offered))
            return *lcid;
    }
    return i18n::EnglishLcid;
}

} // namespace thisapp
