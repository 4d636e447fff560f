#include "app/desktop/Desktop.h"

#include "app/desktop/linux/BusNotifier.h"
#include "app/desktop/linux/LauncherProgress.h"
#include "app/desktop/linux/SessionBus.h"

#include <algorithm>

namespace thisapp::desktop {

bool isDisplayThere()
{
    const auto isSet = [](const char* name) { return !qEnvironmentVariableIsEmpty(name); };
    return std::ranges::any_of(std::initializer_list{"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}, isSet);
}

struct Desktop::Services
{
    SessionBus bus;
    LauncherProgress progress{bus};
    BusNotifier notifier{bus};
};

Desktop::Desktop() : m_services(std::make_unique<Services>())
{
}

Desktop::~Desktop()
{
    m_services->progress.hide(); // a bar that outlives its program would stay for good
}

ITaskbarProgress& Desktop::taskbarProgress()
{
    return m_services->progress;
}

INotifier& Desktop::notifier()
{
    return m_services->notifier;
}

} // namespace thisapp::desktop
