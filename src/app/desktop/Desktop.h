#pragma once

#include "app/desktop/INotifier.h"
#include "app/desktop/ITaskbarProgress.h"

#include <QString>

#include <memory>

namespace thisapp::desktop {

/// Whether windows can be shown here: a server answers, or the chosen platform needs none. To be asked before
/// the application object is made, which ends the process where they can't.
bool isDisplayThere();

/// Lets the standard streams reach the terminal that the program is started from, where a program with
/// windows is started without.
void useTerminal();

/// This user's folder for files that live no longer than the session.
QString sessionFolder();

/// While it lives, application object and first window are made without what this program never uses of
/// the display, which would be half of the time until the window is there. To end with the first paint.
class LeanStart
{
public:
    LeanStart();
    ~LeanStart();
    LeanStart(const LeanStart&) = delete;
    LeanStart& operator=(const LeanStart&) = delete;

private:
    bool m_changed;
};

/// The program's ties to the desktop around it; each does nothing where the desktop offers no such
/// thing. Made after the application object, used on its thread.
class Desktop
{
public:
    Desktop();
    ~Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    ITaskbarProgress& taskbarProgress();
    INotifier& notifier();

private:
    struct Services;
    std::unique_ptr<Services> m_services;
};

} // namespace thisapp::desktop
