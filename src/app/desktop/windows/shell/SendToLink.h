#pragma once

#include "app/desktop/windows/Com.h"

#include <filesystem>

namespace thisapp::desktop {

/// The entry "Quillet" of the send-to menu: a link to the program in the user's folder for them. Explorer
/// starts the program with all selected files.
class SendToLink
{
public:
    SendToLink();

    const std::filesystem::path& path() const { return m_path; }
    /// What it starts; empty when there is none, or nothing that can be read.
    std::filesystem::path program() const;
    /// Both false when that fails; the first leaves a link to this program alone.
    [[nodiscard]] bool write(const std::filesystem::path& program) const;
    [[nodiscard]] bool remove() const;

private:
    ComUse m_com;
    std::filesystem::path m_path;
};

} // namespace thisapp::desktop
