#include "app/desktop/Desktop.h"

#include "app/desktop/windows/SystemLook.h"
#include "app/desktop/windows/TaskbarButton.h"
#include "app/desktop/windows/TrayNotifier.h"

#include <QStandardPaths>

#include <cstdio>
#include <windows.h>

namespace thisapp::desktop {

bool isDisplayThere()
{
    return true;
}

void useTerminal()
{
    // A program with windows is started without the terminal that it is started from.
    if (::GetFileType(::GetStdHandle(STD_OUTPUT_HANDLE)) != FILE_TYPE_UNKNOWN ||
        !::AttachConsole(ATTACH_PARENT_PROCESS))
        return;
    for (std::FILE* stream : {stdout, stderr})
        if (std::freopen("CONOUT$", "w", stream) == nullptr)
            return;
}

QString sessionFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::TempLocation); // of this user
}

LeanStart::LeanStart() : m_changed(false)
{
}

LeanStart::~LeanStart() = default;

struct Desktop::Services
{
    SystemLook look;
    TaskbarButton progress;
    TrayNotifier notifier;
};

Desktop::Desktop() : m_services(std::make_unique<Services>())
{
}

Desktop::~Desktop() = default;

ITaskbarProgress& Desktop::taskbarProgress()
{
    return m_services->progress;
}

INotifier& Desktop::notifier()
{
    return m_services->notifier;
}

} // namespace thisapp::desktop
