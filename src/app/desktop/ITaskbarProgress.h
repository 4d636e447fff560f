#pragma once

namespace thisapp::desktop {

/// The progress bar on the program's entry in the taskbar or dock. Never waits for the desktop.
class ITaskbarProgress
{
public:
    virtual ~ITaskbarProgress() = default;
    virtual void show() = 0;
    virtual void hide() = 0;
    /// 0 to 100; anything beyond is taken as the nearer end. Keeps its value while hidden.
    virtual void setValue(int percent) = 0;
};

} // namespace thisapp::desktop
