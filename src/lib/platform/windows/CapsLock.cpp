#include "lib/platform/CapsLock.h"

#include <windows.h>

namespace tessaly::platform {

std::optional<bool> capsLockOn()
{
    return (::GetKeyState(VK_CAPITAL) & 1) != 0;
}

} // namespace tessaly::platform
