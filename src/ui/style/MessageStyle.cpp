#include "ui/style/MessageStyle.h"

#include <QLineEdit>
#include <QPalette>

namespace thisapp {

QColor messageColor(MessageKind kind, const QPalette& palette)
{
    const bool dark = palette.color(QPalette::Window).lightness() < 128;
    switch (kind) {
    case MessageKind::Success:
        return dark ? QColor(0x7f, 0xd9, 0x8f) : QColor(0x1b, 0x6e, 0x2e);
    case MessageKind::Warning:
        return dark ? QColor(0xf2, 0xb8, 0x5c) : QColor(0x96, 0x53, 0x00);
    case MessageKind::Error:
        return dark ? QColor(0xff, 0x8a, 0x80) : QColor(0xb3, 0x1d, 0x1d);
    case MessageKind::Plain:
        break;
    }
    return palette.color(QPalette::WindowText);
}

void showMessage(QLineEdit& line, const QString& text, MessageKind kind)
{
    QPalette palette = line.palette();
    const QColor color = messageColor(kind, palette);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        palette.setColor(group, QPalette::Text, color);
    line.setPalette(palette);
    line.setText(text);
    line.setCursorPosition(0);
    line.setToolTip(text.toHtmlEscaped());
}

} // namespace thisapp
