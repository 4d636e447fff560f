#include "ui/style/WheelGuard.h"

#include <QComboBox>
#include <QEvent>

namespace thisapp {
namespace {

class WheelGuard final : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* box = qobject_cast<QComboBox*>(watched);
        if (event->type() != QEvent::Wheel || box == nullptr || box->hasFocus())
            return false;
        event->ignore();
        return true;
    }
};

} // namespace

void guardFromWheel(QComboBox& box)
{
    box.setFocusPolicy(Qt::StrongFocus);
    box.installEventFilter(new WheelGuard(&box));
}

} // namespace thisapp
