#include "ui/style/CLinkLabel.h"

#include "ui/style/ThemeChange.h"

#include <QKeyEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace {

constexpr char Target[] = "#";

} // namespace

CLinkLabel::CLinkLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::RichText);
    setTextInteractionFlags(Qt::LinksAccessibleByMouse);
    setFocusPolicy(Qt::StrongFocus);
    thisapp::onThemeChange(*this, [this] {
        clear(); // the same text again would keep the old link colour
        setLinkText(accessibleName());
    });
}

void CLinkLabel::setLinkText(const QString& text)
{
    setText(QStringLiteral("<a href=\"%1\">%2</a>").arg(QLatin1String(Target), text.toHtmlEscaped()));
    setAccessibleName(text);
}

void CLinkLabel::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space)
        emit linkActivated(QLatin1String(Target));
    else
        QLabel::keyPressEvent(event);
}

void CLinkLabel::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QStylePainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}
