#include "lib/i18n/list/WordTest.h"

#include "lib/i18n/AsciiCase.h"

#include <algorithm>
#include <iterator>
#include <string>

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

std::optional<bool> readYesNo(std::string_view text)
{
    const auto found = std::ranges::find(Words, asciiLower(text), &Word::text);
    return found != std::end(Words) ? std::optional(found->value) : std::nullopt;
}

} // namespace tessaly::i18n
