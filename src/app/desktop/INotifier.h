#pragma once

#include <QString>

namespace thisapp::desktop {

/// Messages of the desktop, for when the window is not in sight. Never waits for the desktop.
class INotifier
{
public:
    virtual ~INotifier() = default;
    /// Both plain text, the summary one short line.
    virtual void notify(const QString& summary, const QString& body) = 0;
};

} // namespace thisapp::desktop
