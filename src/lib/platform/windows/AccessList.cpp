#include "lib/platform/windows/AccessList.h"

#include "lib/platform/windows/SystemCall.h"

#include <aclapi.h>
#include <sddl.h>
#include <vector>

namespace tessaly::platform {

namespace {

std::wstring sidText(PSID sid)
{
    LPWSTR text = nullptr;
    if (sid == nullptr || !::ConvertSidToStringSidW(sid, &text))
        return {};
    std::wstring copy = text;
    ::LocalFree(text);
    return copy;
}

/// The identifier that this part of the process's token holds.
template <class Part>
std::wstring tokenSid(TOKEN_INFORMATION_CLASS part, PSID (*sidOf)(const Part&))
{
    HANDLE opened = nullptr;
    if (!::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &opened))
        return {};
    const OwnHandle token(opened);
    DWORD size = 0;
    ::GetTokenInformation(token.get(), part, nullptr, 0, &size);
    std::vector<std::uint64_t> buffer(size / sizeof(std::uint64_t) + 1); // aligned for the record
    if (!::GetTokenInformation(token.get(), part, buffer.data(), size, &size))
        return {};
    return sidText(sidOf(*reinterpret_cast<const Part*>(buffer.data())));
}

/// Of FNV-1a.
constexpr std::uint32_t HashStart = 2166136261;

std::uint32_t hashed(std::uint32_t hash, const void* data, std::size_t size)
{
    const auto* bytes = static_cast<const std::uint8_t*>(data);
    for (std::size_t i = 0; i < size; ++i)
        hash = (hash ^ bytes[i]) * 16777619U;
    return hash;
}

/// Of its list of access rights; the flags of inheritance are left out.
std::uint32_t hashOf(PACL list)
{
    std::uint32_t hash = HashStart;
    for (DWORD i = 0; i < list->AceCount; ++i) {
        void* entry = nullptr;
        if (!::GetAce(list, i, &entry))
            return UnknownAccess;
        const auto* header = static_cast<const ACE_HEADER*>(entry);
        hash = hashed(hash, &header->AceType, sizeof header->AceType);
        hash = hashed(hash, header + 1, header->AceSize - sizeof *header);
    }
    return hash == NoAccessList || hash == UnknownAccess ? HashStart : hash;
}

} // namespace

bool knowsOurUsers(HANDLE folder)
{
    FILE_REMOTE_PROTOCOL_INFO remote = {};
    return !::GetFileInformationByHandleEx(folder, FileRemoteProtocolInfo, &remote, sizeof remote);
}

PrivateAccess::PrivateAccess()
{
    const std::wstring user = userSid();
    const std::wstring text = L"D:P(A;OICI;FA;;;SY)(A;OICI;FA;;;BA)(A;OICI;FA;;;" + user + L")";
    PSECURITY_DESCRIPTOR made = nullptr;
    if (user.empty() || !::ConvertStringSecurityDescriptorToSecurityDescriptorW(text.c_str(), SDDL_REVISION_1,
                                                                                &made, nullptr))
        return;
    m_descriptor.reset(made);
    m_attributes = {sizeof m_attributes, made, FALSE};
}

ResultCode PrivateAccess::grantTo(HANDLE file) const
{
    return m_descriptor ? outcome(::SetKernelObjectSecurity(
                              file, DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION,
                              m_descriptor.get()))
                        : systemError(ERROR_INVALID_SECURITY_DESCR);
}

ResultCode inheritAccess(HANDLE file)
{
    ACL empty = {};
    if (!::InitializeAcl(&empty, sizeof empty, ACL_REVISION))
        return systemError(::GetLastError());
    const DWORD error = ::SetSecurityInfo(file, SE_FILE_OBJECT,
                                          DACL_SECURITY_INFORMATION | UNPROTECTED_DACL_SECURITY_INFORMATION,
                                          nullptr, nullptr, &empty, nullptr);
    return error == ERROR_SUCCESS ? ResultCode{} : systemError(error);
}

std::uint32_t accessFingerprint(HANDLE file)
{
    PACL list = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (::GetSecurityInfo(file, SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr, &list, nullptr,
                          &descriptor) != ERROR_SUCCESS)
        return UnknownAccess;
    const std::uint32_t hash = list ? hashOf(list) : NoAccessList;
    ::LocalFree(descriptor);
    return hash;
}

std::wstring userSid()
{
    return tokenSid<TOKEN_USER>(TokenUser, [](const TOKEN_USER& user) { return user.User.Sid; });
}

std::wstring ownerSid()
{
    return tokenSid<TOKEN_OWNER>(TokenOwner, [](const TOKEN_OWNER& owner) { return owner.Owner; });
}

std::wstring ownerSid(HANDLE file)
{
    PSID owner = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (::GetSecurityInfo(file, SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION, &owner, nullptr, nullptr, nullptr,
                          &descriptor) != ERROR_SUCCESS)
        return {};
    std::wstring text = sidText(owner);
    ::LocalFree(descriptor);
    return text;
}

} // namespace tessaly::platform
