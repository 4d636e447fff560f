#pragma once

#include "lib/err/ResultCode.h"

#include <cstdint>
#include <memory>
#include <string>
#include <windows.h>

/// Who may use what: the system's access lists.
namespace tessaly::platform {

/// Whether the computer that has this folder means the same users by their identifiers. Another one need not:
/// what it keeps for one of ours alone, nobody might ever open again.
bool knowsOurUsers(HANDLE folder);

/// Access for this user alone, for a file or folder that is created, and for all that will be created in such
/// a folder. The system and administrators have it as well: they could take it, and where the disk is carried
/// to another computer, nobody else can.
class PrivateAccess
{
public:
    PrivateAccess();
    /// Null when it cannot be made, with which nothing may be created: the folder's own list would hold.
    SECURITY_ATTRIBUTES* attributes() { return m_descriptor ? &m_attributes : nullptr; }
    /// Gives it to an open file.
    ResultCode grantTo(HANDLE file) const;

private:
    struct LocalDeleter
    {
        void operator()(void* memory) const { ::LocalFree(memory); }
    };
    std::unique_ptr<void, LocalDeleter> m_descriptor;
    SECURITY_ATTRIBUTES m_attributes = {};
};

/// Replaces the list of an open file by the one that its folder hands down.
ResultCode inheritAccess(HANDLE file);

/// A number that equal lists have in common, wherever their entries came from, or one of the two below.
std::uint32_t accessFingerprint(HANDLE file);
inline constexpr std::uint32_t NoAccessList = 0; ///< everybody may do everything
inline constexpr std::uint32_t UnknownAccess = 1;

/// The current user's security identifier as text, "S-1-5-..."; empty when it is unknown.
std::wstring userSid();
/// The same of whom new files of this process belong to, which may be a group of administrators.
std::wstring ownerSid();
/// The same of whom an open file belongs to.
std::wstring ownerSid(HANDLE file);

} // namespace tessaly::platform
