#include "app/desktop/Desktop.h"

#include "app/desktop/linux/BusNotifier.h"
#include "app/desktop/linux/DisplayServers.h"
#include "app/desktop/linux/LauncherProgress.h"
#include "app/desktop/linux/SessionBus.h"

#include <QByteArray>
#include <QList>
#include <QStandardPaths>

#include <algorithm>

namespace thisapp::desktop {

bool isDisplayThere()
{
    const QByteArray platforms = qgetenv("QT_QPA_PLATFORM");
    if (platforms.isEmpty())
        return reachesX() || reachesWayland();
    // A list of "name:arguments"; the first one that works is used.
    return std::ranges::any_of(platforms.split(';'), [](const QByteArray& platform) {
        return platform.startsWith("xcb")       ? reachesX()
               : platform.startsWith("wayland") ? reachesWayland()
                                                : true;
    });
}

void useTerminal()
{
}

QString sessionFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
}

// The toolkit's X plugin loads the graphics driver in case OpenGL should be drawn. The variable is not left
// to programs that this one starts.
constexpr const char* GlVariable = "QT_XCB_GL_INTEGRATION";

LeanStart::LeanStart() : m_changed(!qEnvironmentVariableIsSet(GlVariable))
{
    if (m_changed)
        qputenv(GlVariable, "none");
}

LeanStart::~LeanStart()
{
    if (m_changed)
        qunsetenv(GlVariable);
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
