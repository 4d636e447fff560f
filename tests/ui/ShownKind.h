#pragma once

#include "ui/style/MessageStyle.h"

#include <QLabel>
#include <QLineEdit>
#include <algorithm>

/// The kind of message that the text's colour stands for.
inline thisapp::MessageKind shownKind(const QWidget& widget)
{
    using thisapp::MessageKind;
    const bool field = qobject_cast<const QLineEdit*>(&widget) != nullptr;
    const QColor color = widget.palette().color(field ? QPalette::Text : QPalette::WindowText);
    for (const MessageKind kind : {MessageKind::Success, MessageKind::Warning, MessageKind::Error})
        if (color == messageColor(kind, widget.window()->palette()))
            return kind;
    return MessageKind::Plain;
}
