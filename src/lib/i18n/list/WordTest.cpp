#include "lib/i18n/list/WordTest.h"

#include <algorithm>
#include <iterator>

namespace tessaly::i18n {

namespace {

struct Word
{
    std::string_view text;
    bool value;
};

// "ofcouse" is how existing files spell it.
constexpr Word Words[] = {
    {"1", true},  {"ok", true},   {"yes", true},    {"ofcouse", true}, {"true", true},
    {"0", false}, {"not", false}, {"never", false}, {"false", false},
};

} // namespace

std::string asciiLower(std::string_view text)
{
    std::string lower(text);
    for (char& c : lower)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return lower;
}

std::optional<bool> readYesNo(std::string_view text)
{
    const auto found = std::ranges::find(Words, asciiLower(text), &Word::text);
    return found != std::end(Words) ? std::optional(found->value) : std::nullopt;
}

} // namespace tessaly::i18n
