#include "ui/style/MessageStyle.h"

#include <QPalette>

namespace thisapp {

namespace {

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < 128;
}

} // namespace

QColor messageColor(MessageKind kind, const QPalette& palette)
{
    const bool dark = isDark(palette);
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

QColor fieldColor(bool valid, const QPalette& palette)
{
    if (isDark(palette))
        return valid ? QColor(0x1d, 0x3b, 0x25) : QColor(0x4a, 0x22, 0x22);
    return valid ? QColor(0xe3, 0xf5, 0xe6) : QColor(0xfd, 0xe4, 0xe1);
}

} // namespace thisapp
