#include "lib/i18n/PluralForms.h"

#include <algorithm>
#include <iterator>

namespace tessaly::i18n {

namespace {

using Number = std::uint32_t;

constexpr bool isBetween(Number n, Number least, Number most)
{
    return least <= n && n <= most;
}

/// 1, 21, 31 ..., but not 11.
constexpr bool endsInOne(Number n)
{
    return n % 10 == 1 && n % 100 != 11;
}

/// 2, 3, 4, 22 ..., but not 12, 13, 14.
constexpr bool endsInFew(Number n)
{
    return isBetween(n % 10, 2, 4) && !isBetween(n % 100, 10, 19);
}

struct Rule
{
    std::string_view languages; ///< codes, or a tag where the country matters, each with blanks around it
    std::size_t (*form)(Number n);
};

// clang-format off
constexpr Rule Rules[] = {
    {" arn bo dsb fa gsw hsb hu id ig ii ja kh ko kok moh ms prs qut quz sah sma smj smn sms syr th tr tt tzm vi yo zh ",
     [](Number) -> std::size_t { return 0; }},
    {" br fil fr hy pt-BR ",
     [](Number n) -> std::size_t { return n <= 1 ? 0 : 1; }},
    {" is ",
     [](Number n) -> std::size_t { return endsInOne(n) ? 0 : 1; }},
    {" lv ",
     [](Number n) -> std::size_t { return endsInOne(n) ? 0 : n != 0 ? 1 : 2; }},
    {" lt ",
     [](Number n) -> std::size_t { return endsInOne(n) ? 0 : n % 10 != 0 && !isBetween(n % 100, 10, 19) ? 1 : 2; }},
    {" be bs hr ru sr uk ",
     [](Number n) -> std::size_t { return endsInOne(n) ? 0 : endsInFew(n) ? 1 : 2; }},
    {" pl ",
     [](Number n) -> std::size_t { return n == 1 ? 0 : endsInFew(n) ? 1 : 2; }},
    {" cs sk ",
     [](Number n) -> std::size_t { return n == 1 ? 0 : isBetween(n, 2, 4) ? 1 : 2; }},
    {" dv ga iu mi sa se ",
     [](Number n) -> std::size_t { return n == 1 ? 0 : n == 2 ? 1 : 2; }},
    {" mk ",
     [](Number n) -> std::size_t { return n % 10 == 1 ? 0 : n % 10 == 2 ? 1 : 2; }},
    {" ro ",
     [](Number n) -> std::size_t { return n == 1 ? 0 : n == 0 || isBetween(n % 100, 1, 19) ? 1 : 2; }},
    {" sl ",
     [](Number n) -> std::size_t { return n % 100 == 1 ? 0 : n % 100 == 2 ? 1 : isBetween(n % 100, 3, 4) ? 2 : 3; }},
    {" mt ",
     [](Number n) -> std::size_t { return n == 1 ? 0 : n == 0 || isBetween(n % 100, 1, 10) ? 1 : isBetween(n % 100, 11, 19) ? 2 : 3; }},
    {" cy ",
     [](Number n) -> std::size_t { return n <= 1 ? n : n <= 5 ? 2 : n == 6 ? 3 : 4; }},
    {" ar ",
     [](Number n) -> std::size_t { return n <= 2 ? n : isBetween(n % 100, 3, 10) ? 3 : n % 100 >= 11 ? 4 : 5; }},
};
// clang-format on

bool holds(const Rule& rule, std::string_view word)
{
    return rule.languages.find(' ' + std::string(word) + ' ') != std::string_view::npos;
}

} // namespace

std::size_t pluralForm(const internal::Locale& locale, std::uint32_t number)
{
    const auto rule = std::ranges::find_if(Rules, [&](const Rule& candidate) {
        return holds(candidate, locale.languageCode) || holds(candidate, locale.tag);
    });
    if (rule != std::end(Rules))
        return rule->form(number);
    return number == 1 ? 0 : 1;
}

std::string formKey(std::string_view source, std::size_t form)
{
    constexpr char Separator = '\x1f'; // in no text that is shown
    return std::string(source) + Separator + std::to_string(form);
}

} // namespace tessaly::i18n
