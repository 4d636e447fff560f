#include "ui/style/MaskedText.h"

#include <QAccessible>
#include <QLineEdit>

namespace thisapp {

namespace {

void mask(QAccessibleEvent* event);

/// To the platform, which is reached only while there is no handler.
void pass(QAccessibleEvent* event)
{
    QAccessible::installUpdateHandler(nullptr);
    QAccessible::updateAccessibility(event);
    QAccessible::installUpdateHandler(mask);
}

bool isMasked(const QObject* object)
{
    const auto* field = qobject_cast<const QLineEdit*>(object);
    return field != nullptr && field->echoMode() != QLineEdit::Normal;
}

QString bullets(const QString& text)
{
    return QString(text.size(), QChar(0x2022));
}

void mask(QAccessibleEvent* event)
{
    if (!isMasked(event->object()))
        return pass(event);
    switch (event->type()) {
    case QAccessible::TextInserted: {
        const auto& insertion = *static_cast<QAccessibleTextInsertEvent*>(event);
        QAccessibleTextInsertEvent masked(event->object(), insertion.changePosition(),
                                          bullets(insertion.textInserted()));
        return pass(&masked);
    }
    case QAccessible::TextRemoved: {
        const auto& removal = *static_cast<QAccessibleTextRemoveEvent*>(event);
        QAccessibleTextRemoveEvent masked(event->object(), removal.changePosition(),
                                          bullets(removal.textRemoved()));
        return pass(&masked);
    }
    case QAccessible::TextUpdated: {
        const auto& update = *static_cast<QAccessibleTextUpdateEvent*>(event);
        QAccessibleTextUpdateEvent masked(event->object(), update.changePosition(),
                                          bullets(update.textRemoved()), bullets(update.textInserted()));
        return pass(&masked);
    }
    default:
        return pass(event);
    }
}

} // namespace

void maskTextOfSecretFields()
{
    QAccessible::installUpdateHandler(mask);
}

} // namespace thisapp
