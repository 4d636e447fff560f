#include "ui/style/MessageStyle.h"

#include <QPalette>

#include <algorithm>
#include <cmath>

namespace thisapp {

namespace {

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < 128;
}

/// Relative luminance and contrast ratio as of WCAG 2.1, which asks for 4.5 at the least.
constexpr double EnoughContrast = 4.5;

double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const auto [less, more] = std::minmax({luminance(one), luminance(other)});
    return (more + 0.05) / (less + 0.05);
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

QColor linkColor(const QPalette& palette)
{
    const QColor given = palette.color(QPalette::Link);
    if (contrast(given, palette.color(QPalette::Window)) >= EnoughContrast)
        return given;
    return isDark(palette) ? QColor(0x8a, 0xc6, 0xff) : QColor(0x00, 0x00, 0xc0);
}

} // namespace thisapp
