#include "app/desktop/EntryOwnership.h"

#include <system_error>
#include <utility>

namespace thisapp::desktop {

namespace fs = std::filesystem;

namespace {

bool isThere(const fs::path& path)
{
    std::error_code ignored;
    return fs::exists(path, ignored);
}

} // namespace

EntryOwnership::EntryOwnership(fs::path program)
    : m_program(std::move(program)), m_isBuilt(isThere(m_program.parent_path() / "../CMakeCache.txt"))
{
}

bool EntryOwnership::mayChange(const fs::path& startedNow) const
{
    return !m_isBuilt || startedNow.empty() || startedNow == m_program || !isThere(startedNow);
}

} // namespace thisapp::desktop
