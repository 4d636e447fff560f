#include "app/widgets/CElidedLabel.h"

#include "app/job/Message.h"
#include "ui/style/PlainToolTip.h"
#include "ui/style/TextDirection.h"

#include <QEvent>
#include <QStringList>

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
    const QFontMetrics metrics = fontMetrics();
    QStringList parts = m_whole.split(thisapp::nameArrow());
    if (metrics.horizontalAdvance(m_whole) > width())
        for (QString& part : parts) {
            const int room = width() - metrics.horizontalAdvance(thisapp::nameArrow()) * (parts.size() - 1);
            part = metrics.elidedText(part, Qt::ElideMiddle, room / parts.size());
        }
    setText(thisapp::atLanguageSide(parts.join(thisapp::nameArrow())));
    thisapp::setPlainToolTip(*this, m_whole);
}
