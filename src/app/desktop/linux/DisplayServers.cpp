#include "app/desktop/linux/DisplayServers.h"

#include <QDir>
#include <QFile>
#include <QLibraryInfo>

#include <algorithm>
#include <memory>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <xcb/xcb.h>

namespace thisapp::desktop {

namespace {

/// True when somebody listens at the socket.
bool answersAt(const QByteArray& path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= static_cast<int>(sizeof address.sun_path))
        return false;
    std::ranges::copy(path, address.sun_path);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (socket < 0)
        return false;
    const bool connected =
        ::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    ::close(socket);
    return connected;
}

bool hasWaylandPlugin()
{
    const QDir plugins(QLibraryInfo::location(QLibraryInfo::PluginsPath) + QStringLiteral("/platforms"));
    return !plugins.entryList({QStringLiteral("*wayland*")}, QDir::Files).isEmpty();
}

} // namespace

bool reachesX()
{
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        return false;
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(
        xcb_connect(nullptr, nullptr), &xcb_disconnect);
    return xcb_connection_has_error(connection.get()) == 0;
}

bool reachesWayland()
{
    const QByteArray name = qgetenv("WAYLAND_DISPLAY");
    if (name.isEmpty() || !hasWaylandPlugin())
        return false;
    return answersAt(name.startsWith('/') ? name : qgetenv("XDG_RUNTIME_DIR") + '/' + name);
}

} // namespace thisapp::desktop
