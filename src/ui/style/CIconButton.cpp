#include "ui/style/CIconButton.h"

#include <QStyleOptionButton>
#include <QStylePainter>

void CIconButton::paintEvent(QPaintEvent* event)
{
    if (!isRightToLeft()) {
        QPushButton::paintEvent(event);
        return;
    }
    constexpr QChar RightToLeftEmbedding(0x202b);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.prepend(RightToLeftEmbedding);
    QStylePainter painter(this);
    // The style means the right side, and a painter of the other direction would turn that round.
    painter.setLayoutDirection(Qt::LeftToRight);
    painter.drawControl(QStyle::CE_PushButton, option);
}
