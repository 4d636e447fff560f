#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

#include <optional>

namespace thisapp::desktop {

/// Makes the program look as the system does: the font of its messages, and style and colours as the user
/// has chosen light or dark ones. Follows a change of the choice.
class SystemLook final : public QObject, private QAbstractNativeEventFilter
{
public:
    SystemLook();
    ~SystemLook() override;

private:
    void follow();
    bool nativeEventFilter(const QByteArray& type, void* message, long* result) override;

    std::optional<bool> m_isDark;
};

} // namespace thisapp::desktop
