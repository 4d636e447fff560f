#pragma once

#include "app/desktop/INotifier.h"

namespace thisapp::desktop {

class SessionBus;

/// Notifications through the desktop's notification server.
class BusNotifier final : public INotifier
{
public:
    explicit BusNotifier(SessionBus& bus) : m_bus(bus) {}

    void notify(const QString& summary, const QString& body, const NotifierAction& action) override;

private:
    SessionBus& m_bus;
};

} // namespace thisapp::desktop
