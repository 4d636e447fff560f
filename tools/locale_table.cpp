// Prints the locale catalogue: LCID, tag, display name, and some of the numbers that go with each plural
// form, separated by tabs.
#include "lib/i18n/PluralForms.h"
#include "lib/i18n/locale/LocaleCatalogue.h"

#include <iostream>
#include <map>
#include <string>

namespace {

std::string pluralExamples(const tessaly::i18n::internal::Locale& locale)
{
    constexpr int Enough = 4;
    std::map<std::size_t, std::pair<int, std::string>> forms;
    for (std::uint32_t number = 0; number <= 100; ++number) {
        auto& [count, numbers] = forms[tessaly::i18n::pluralForm(locale, number)];
        if (++count <= Enough)
            numbers += (numbers.empty() ? "" : " ") + std::to_string(number);
    }
    std::string text;
    for (const auto& [form, examples] : forms)
        text += (form == 0 ? "" : " | ") + examples.second + (examples.first > Enough ? " ..." : "");
    return text;
}

} // namespace

int main()
{
    for (const auto& locale : tessaly::i18n::locales())
        std::cout << locale.lcid << '\t' << locale.tag << '\t' << locale.displayName << '\t'
                  << pluralExamples(locale) << '\n';
}
