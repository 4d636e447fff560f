#include "ui/style/TextSize.h"

#include <QFontMetrics>
#include <QScreen>
#include <QWidget>

namespace thisapp {

QSize textSize(const QWidget& widget, int columns, int lines)
{
    const QFontMetrics metrics(widget.font());
    const QSize wanted(columns * metrics.averageCharWidth(), lines * metrics.lineSpacing());
    const QScreen* screen = widget.screen();
    return screen != nullptr ? wanted.boundedTo(screen->availableSize() * 9 / 10) : wanted;
}

} // namespace thisapp
