#include "app/widgets/CElidedLabel.h"

#include "ui/style/PlainToolTip.h"

#include <QEvent>

CElidedLabel::CElidedLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void CElidedLabel::setWholeText(const QString& text)
{
    m_whole = text;
    refresh();
}

void CElidedLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    refresh();
}

void CElidedLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        refresh();
}

void CElidedLabel::refresh()
{
    setText(fontMetrics().elidedText(m_whole, Qt::ElideMiddle, width()));
    thisapp::setPlainToolTip(*this, m_whole);
}
