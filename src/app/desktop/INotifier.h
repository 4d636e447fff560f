#pragma once

#include <QString>

#include <functional>

namespace thisapp::desktop {

/// What a notification offers beside its text.
struct NotifierAction
{
    QString text;
    std::function<void()> run; ///< on the caller's thread; none offers nothing
};

/// Messages of the desktop, for when the window is not in sight. Never waits for the desktop.
class INotifier
{
public:
    virtual ~INotifier() = default;
    /// Both plain text, the summary one short line.
    virtual void notify(const QString& summary, const QString& body, const NotifierAction& action) = 0;
};

} // namespace thisapp::desktop
