#pragma once

#include "app/desktop/INotifier.h"

#include <QSystemTrayIcon>

namespace thisapp::desktop {

/// Notifications of the taskbar's corner. They have no buttons: a click brings the window to the front,
/// where the action is offered as well.
class TrayNotifier final : public QObject, public INotifier
{
    Q_OBJECT

public:
    TrayNotifier();

    void notify(const QString& summary, const QString& body, const NotifierAction& action) override;

private:
    void showWindow();

    QSystemTrayIcon m_icon; ///< in sight from a notification until the program is active
};

} // namespace thisapp::desktop
