#pragma once

/// Whether the servers that can show windows answer. What the environment names need not be alive.
namespace thisapp::desktop {

/// By DISPLAY, with all its forms and the server's access control.
bool reachesX();

/// By WAYLAND_DISPLAY. False without Qt's plugin for it, which comes in a package of its own.
bool reachesWayland();

} // namespace thisapp::desktop
