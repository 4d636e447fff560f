#pragma once

#include <filesystem>

namespace thisapp::desktop {

/// A program that was not installed leaves alone what starts another one that can still be started.
class EntryOwnership
{
public:
    explicit EntryOwnership(std::filesystem::path program);

    /// Whether an entry that starts this may be changed or removed; an empty one starts nothing.
    bool mayChange(const std::filesystem::path& startedNow) const;

private:
    std::filesystem::path m_program;
    bool m_isBuilt;
};

} // namespace thisapp::desktop
