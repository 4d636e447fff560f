#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace fuzz {

inline std::string_view text(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}

/// What stands between zero bytes, as arguments do.
inline std::vector<std::string> words(std::string_view text)
{
    std::vector<std::string> found;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\0'), text.size());
        found.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return found;
}

} // namespace fuzz
