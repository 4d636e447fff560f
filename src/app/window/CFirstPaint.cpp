#include "app/window/CFirstPaint.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <utility>

namespace {

constexpr int LongestWaitMs = 500;

} // namespace

CFirstPaint::CFirstPaint(QWidget& window, std::function<void()> action)
    : QObject(&window), m_action(std::move(action))
{
    window.installEventFilter(this);
    QTimer::singleShot(LongestWaitMs, this, &CFirstPaint::onUiTime);
}

bool CFirstPaint::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Paint) {
        watched->removeEventFilter(this);
        QTimer::singleShot(0, this, &CFirstPaint::onUiTime); // behind the paint, which has only begun
    }
    return false;
}

void CFirstPaint::onUiTime()
{
    if (const auto action = std::exchange(m_action, {})) {
        deleteLater();
        action();
    }
}
