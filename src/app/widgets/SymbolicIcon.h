#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QString>

namespace thisapp {

/// One of the program's single-coloured glyphs. It is drawn from its SVG in the text colour of the
/// palette that is current at that moment, so it is crisp at any scale and right on dark and light.
QIcon symbolicIcon(const QString& name);

/// The glyph in a colour, `size` device-independent pixels wide and high.
QPixmap symbolicPixmap(const QString& name, int size, const QColor& color, qreal devicePixelRatio);

/// The program's own icon, in its colours.
QIcon applicationIcon();

} // namespace thisapp
