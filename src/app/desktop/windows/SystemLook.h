#pragma once

#include <QObject>

namespace thisapp::desktop {

/// Makes the program look as the system does: the font of its messages, and a style that can be dark
/// where the user has chosen dark colours, which the system's own cannot. Follows a change of the choice.
class SystemLook final : public QObject
{
public:
    SystemLook();
};

} // namespace thisapp::desktop
