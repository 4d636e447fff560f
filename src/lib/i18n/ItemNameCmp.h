#pragma once

#include <string_view>

namespace tessaly::i18n {

/// Orders names byte by byte, so case matters; takes views, so that a look-up allocates nothing.
struct ItemNameCmp
{
    using is_transparent = void;

    bool operator()(std::string_view a, std::string_view b) const { return a < b; }
};

} // namespace tessaly::i18n
