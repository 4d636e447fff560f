#include "ui/shortcuts/Shortcut.h"

#include <QCoreApplication>
#include <QKeySequence>

namespace thisapp {

QString Shortcut::keyText() const
{
    const auto text = [](int sequence) {
        return QKeySequence(sequence).toString(QKeySequence::PortableText);
    };
    const QString quoted = QStringLiteral("'%1'").arg(text(key));
    return (key & ControlKey) == 0 ? quoted
                                   : QStringLiteral("%1 (Cmd+%2)").arg(quoted, text(key & ~ControlKey));
}

QString Shortcut::translatedDescription() const
{
    return QCoreApplication::translate("Shortcuts", description);
}

} // namespace thisapp
