#pragma once

#include <QSize>

class QWidget;

namespace thisapp {

/// The room that a number of average characters and lines takes in a widget's font. Dialogs size
/// themselves by it, so that they fit every font and scale; the screen's size is the limit.
QSize textSize(const QWidget& widget, int columns, int lines);

} // namespace thisapp
