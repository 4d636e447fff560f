#include "app/desktop/windows/shell/SendToLink.h"

#include <array>
#include <shlobj.h>
#include <system_error>

namespace thisapp::desktop {

namespace {

std::filesystem::path sendToFolder()
{
    PWSTR found = nullptr;
    const bool known = SUCCEEDED(::SHGetKnownFolderPath(FOLDERID_SendTo, KF_FLAG_CREATE, nullptr, &found));
    std::filesystem::path folder = known ? std::filesystem::path(found) : std::filesystem::path();
    ::CoTaskMemFree(found);
    return folder;
}

} // namespace

SendToLink::SendToLink() : m_path(sendToFolder())
{
    if (!m_path.empty())
        m_path /= L"Quillet.lnk";
}

std::filesystem::path SendToLink::program() const
{
    const auto link = makeObject<IShellLinkW>(CLSID_ShellLink);
    const auto file = link ? queryInterface<IPersistFile>(*link) : nullptr;
    std::array<wchar_t, 32768> target{};
    const bool read = file && SUCCEEDED(file->Load(m_path.c_str(), STGM_READ)) &&
                      SUCCEEDED(link->GetPath(target.data(), static_cast<int>(target.size()), nullptr, 0));
    return read ? std::filesystem::path(target.data()) : std::filesystem::path();
}

bool SendToLink::write(const std::filesystem::path& program) const
{
    if (m_path.empty() || this->program() == program)
        return !m_path.empty();
    const auto link = makeObject<IShellLinkW>(CLSID_ShellLink);
    const auto file = link ? queryInterface<IPersistFile>(*link) : nullptr;
    return file && SUCCEEDED(link->SetPath(program.c_str())) &&
           SUCCEEDED(link->SetWorkingDirectory(program.parent_path().c_str())) &&
           SUCCEEDED(link->SetIconLocation(program.c_str(), 0)) &&
           SUCCEEDED(file->Save(m_path.c_str(), TRUE));
}

bool SendToLink::remove() const
{
    std::error_code error;
    std::filesystem::remove(m_path, error);
    return !error;
}

} // namespace thisapp::desktop
