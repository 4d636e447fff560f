#include "lib/platform/CapsLock.h"

#include "lib/platform/linux/CapsLight.h"

#include <fstream>
#include <string_view>

namespace tessaly::platform {

std::optional<bool> capsLightOn(const std::filesystem::path& lights)
{
    constexpr std::string_view Suffix = "::capslock";
    std::optional<bool> on;
    std::error_code error;
    // Stepped by hand: a keyboard unplugged meanwhile must not throw.
    std::filesystem::directory_iterator light(lights, error);
    for (; light != std::filesystem::directory_iterator(); light.increment(error)) {
        if (!light->path().native().ends_with(Suffix))
            continue;
        int brightness = 0;
        if (std::ifstream(light->path() / "brightness") >> brightness)
            on = on.value_or(false) || brightness > 0;
    }
    return on;
}

// The kernel shows each keyboard's light to everyone, under X11 and Wayland alike.
std::optional<bool> capsLockOn()
{
    return capsLightOn("/sys/class/leds");
}

} // namespace tessaly::platform
