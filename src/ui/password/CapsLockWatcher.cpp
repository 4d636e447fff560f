#include "ui/password/CapsLockWatcher.h"

#include <QKeyEvent>

namespace {

/// What a typed letter tells; nothing for other keys and for letters without case.
std::optional<bool> evidenceIn(const QKeyEvent& event)
{
    const QString text = event.text();
    if (text.size() != 1 || text[0].toUpper() == text[0].toLower())
        return std::nullopt;
    return text[0].isUpper() != event.modifiers().testFlag(Qt::ShiftModifier);
}

} // namespace

CapsLockWatcher::CapsLockWatcher(Query query, QObject* parent) : QObject(parent), m_query(std::move(query))
{
}

void CapsLockWatcher::watch(QObject& field)
{
    field.installEventFilter(this);
}

bool CapsLockWatcher::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn) {
        learn(m_query());
    } else if (event->type() == QEvent::KeyPress) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (key.key() != Qt::Key_CapsLock)
            learn(evidenceIn(key));
        else if (m_on && !key.isAutoRepeat())
            learn(!*m_on);
    }
    return QObject::eventFilter(watched, event);
}

void CapsLockWatcher::learn(std::optional<bool> on)
{
    if (!on || on == m_on)
        return;
    m_on = on;
    emit notifyCapsLockChanged(*on);
}
