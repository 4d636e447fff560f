#pragma once

#include <filesystem>
#include <optional>

namespace tessaly::platform {

/// Whether any Caps Lock light in that folder, laid out as /sys/class/leds, is on; nothing without one.
std::optional<bool> capsLightOn(const std::filesystem::path& lights);

} // namespace tessaly::platform
