#include "app/widgets/CDropHint.h"

#include "app/widgets/CElidedLabel.h"
#include "app/widgets/LegibleNames.h"
#include "app/widgets/SymbolicIcon.h"
#include "ui/style/ThemeChange.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QVBoxLayout>

CDropHint::CDropHint(QWidget* parent)
    : QPushButton(parent), m_icon(new QLabel), m_headline(new CElidedLabel), m_detail(new QLabel)
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
    for (QLabel* label : std::initializer_list<QLabel*>{m_headline, m_detail}) {
        label->setForegroundRole(QPalette::Text); // not that of a button
        thisapp::keepLegible(*label);
        thisapp::onThemeChange(*label, [label] { thisapp::keepLegible(*label); });
    }
    setAutoDefault(true); // Enter presses it, too
}

void CDropHint::setContent(const QString& glyph, const QString& headline, const QString& detail)
{
    m_glyph = glyph;
    m_headline->setWholeText(headline);
    m_detail->setText(detail);
    setAccessibleName(headline);
    setAccessibleDescription(detail);
    refresh();
}

void CDropHint::setHighlighted(bool highlighted)
{
    m_highlighted = highlighted;
    refresh();
    update();
}

void CDropHint::paintEvent(QPaintEvent*)
{
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
    if (!hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    const int inset = static_cast<int>(3 * width);
    option.rect = rect().adjusted(inset, inset, -inset, -inset);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

QSize CDropHint::sizeHint() const
{
    return layout()->sizeHint();
}

/// The name alone.
QSize CDropHint::minimumSizeHint() const
{
    return {0, 2 * fontMetrics().height()};
}

/// What there is no room for is left out, the name last.
void CDropHint::resizeEvent(QResizeEvent* event)
{
    QPushButton::resizeEvent(event);
    const int line = fontMetrics().height();
    m_icon->setVisible(height() > 6 * line);
    m_detail->setVisible(height() > 4 * line);
    const int margin = height() > 6 * line ? line : line / 4;
    layout()->setContentsMargins(line, margin, line, margin);
}

void CDropHint::changeEvent(QEvent* event)
{
    QPushButton::changeEvent(event);
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
