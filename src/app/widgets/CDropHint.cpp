#include "app/widgets/CDropHint.h"

#include "app/widgets/CElidedLabel.h"
#include "app/widgets/SymbolicIcon.h"

#include <QEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

CDropHint::CDropHint(QWidget* parent)
    : QFrame(parent), m_icon(new QLabel), m_headline(new CElidedLabel), m_detail(new QLabel)
{
    auto* layout = new QVBoxLayout(this);
    const int margin = fontMetrics().height();
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addStretch();
    for (QLabel* label : std::initializer_list<QLabel*>{m_icon, m_headline, m_detail}) {
        label->setAlignment(Qt::AlignCenter);
        label->setTextFormat(Qt::PlainText);
        layout->addWidget(label);
    }
    layout->addStretch();

    QFont font = m_headline->font();
    font.setBold(true);
    m_headline->setFont(font);
    m_detail->setWordWrap(true);
    m_icon->setMinimumHeight(iconSize());
    setCursor(Qt::PointingHandCursor);
}

void CDropHint::setContent(const QString& glyph, const QString& headline, const QString& detail)
{
    m_glyph = glyph;
    m_headline->setWholeText(headline);
    m_detail->setText(detail);
    refresh();
}

void CDropHint::setHighlighted(bool highlighted)
{
    m_highlighted = highlighted;
    refresh();
    update();
}

void CDropHint::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    const qreal width = qMax(1.0, fontMetrics().height() / 12.0);
    QPen pen(accent(), width, Qt::DashLine, Qt::RoundCap);
    QColor fill = palette().color(m_highlighted ? QPalette::Highlight : QPalette::Base);
    if (m_highlighted)
        fill.setAlphaF(0.15);

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(pen);
    painter.setBrush(fill);
    const qreal radius = fontMetrics().height() / 2.0;
    painter.drawRoundedRect(QRectF(rect()).adjusted(width, width, -width, -width), radius, radius);
}

void CDropHint::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        emit notifyClicked();
}

void CDropHint::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::EnabledChange)
        refresh();
}

int CDropHint::iconSize() const
{
    return 2 * fontMetrics().height();
}

/// The colour of border and glyph.
QColor CDropHint::accent() const
{
    if (m_highlighted)
        return palette().color(QPalette::Highlight);
    QColor color = palette().color(QPalette::WindowText);
    color.setAlphaF(0.55);
    return color;
}

void CDropHint::refresh()
{
    if (!m_glyph.isEmpty())
        m_icon->setPixmap(thisapp::symbolicPixmap(m_glyph, iconSize(), accent(), devicePixelRatioF()));
}
