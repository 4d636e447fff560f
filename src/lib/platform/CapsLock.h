#pragma once

#include <optional>

namespace tessaly::platform {

/// Whether Caps Lock is on at this computer's own keyboards; nothing when that cannot be told.
std::optional<bool> capsLockOn();

} // namespace tessaly::platform
