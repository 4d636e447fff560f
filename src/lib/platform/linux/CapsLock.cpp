#include "lib/platform/CapsLock.h"

#include <filesystem>
#include <fstream>
#include <string_view>

namespace tessaly::platform {

// The kernel shows each keyboard's light to everyone, under X11 and Wayland alike.
std::optional<bool> capsLockOn()
{
    constexpr std::string_view Suffix = "::capslock";
    std::optional<bool> on;
    std::error_code error;
    // Stepped by hand: a keyboard unplugged meanwhile must not throw.
    std::filesystem::directory_iterator light("/sys/class/leds", error);
    for (; light != std::filesystem::directory_iterator(); light.increment(error)) {
        if (!light->path().native().ends_with(Suffix))
            continue;
        int brightness = 0;
        if (std::ifstream(light->path() / "brightness") >> brightness)
            on = on.value_or(false) || brightness > 0;
    }
    return on;
}

} // namespace tessaly::platform
