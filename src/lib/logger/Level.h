#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tessaly::logger {

/// A smaller number is more severe. As a threshold, Off means that nothing is logged.
enum Level : std::uint32_t {
    Off = 0,
    Fatal = 1,
    Error = 2,
    Warning = 3,
    Information = 4,
    Debug = 5,
    Trace = 6,
};

/// An ASCII word of at most 15 letters in either character width.
template <class Char>
class LevelWord
{
public:
    constexpr LevelWord(std::string_view ascii) : m_size(ascii.size())
    {
        std::transform(ascii.begin(), ascii.end(), m_text.begin(), [](char c) { return Char(c); });
    }
    constexpr std::basic_string_view<Char> view() const { return {m_text.data(), m_size}; }

private:
    std::array<Char, 15> m_text{};
    std::size_t m_size;
};

template <class Char>
struct LevelRow
{
    Level level;
    /// Five letters wide, so that the log file's columns stay aligned.
    LevelWord<Char> tag;
    LevelWord<Char> name;
};

template <class Char>
inline constexpr std::array<LevelRow<Char>, 7> levels{{
    {Off, {"OFFFF"}, {"OFF"}},
    {Fatal, {"FATAL"}, {"FATAL"}},
    {Error, {"ERROR"}, {"ERROR"}},
    {Warning, {"WARNG"}, {"WARNING"}},
    {Information, {"INFRM"}, {"INFORMATION"}},
    {Debug, {"DEBUG"}, {"DEBUG"}},
    {Trace, {"TRACE"}, {"TRACE"}},
}};

/// Null when the number is no level.
template <class Char = char>
constexpr const LevelRow<Char>* findLevel(std::uint32_t level)
{
    return level < levels<Char>.size() ? &levels<Char>[level] : nullptr;
}

} // namespace tessaly::logger
