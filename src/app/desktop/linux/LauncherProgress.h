#pragma once

#include "app/desktop/ITaskbarProgress.h"

namespace thisapp::desktop {

class SessionBus;

/// Progress as docks and taskbars take it from the launcher entry's Update signal.
class LauncherProgress final : public ITaskbarProgress
{
public:
    explicit LauncherProgress(SessionBus& bus) : m_bus(bus) {}

    void show() override;
    void hide() override;
    void setValue(int percent) override;

private:
    void setVisible(bool visible);
    void send();

    SessionBus& m_bus;
    bool m_visible = false;
    int m_percent = 0;
};

} // namespace thisapp::desktop
