#include "ui/password/CStrengthBar.h"

#include <QPainter>
#include <QStyle>

CStrengthBar::CStrengthBar(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void CStrengthBar::showStrength(const thisapp::SStrengthNotice& notice)
{
    m_notice = notice;
    setAccessibleDescription(notice.text);
    update();
}

QSize CStrengthBar::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 20, fontMetrics().height() / 3};
}

void CStrengthBar::paintEvent(QPaintEvent*)
{
    constexpr int Fields = thisapp::HighestStrength;
    const int gap = height();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    QColor empty = palette().color(QPalette::WindowText);
    empty.setAlphaF(0.16);
    const qreal each = (width() - gap * (Fields - 1.0)) / Fields;
    for (int field = 0; field < Fields; ++field) {
        painter.setBrush(field < m_notice.level ? thisapp::messageColor(m_notice.kind, palette()) : empty);
        const QRectF bounds(field * (each + gap), 0, each, height());
        painter.drawRoundedRect(QStyle::visualRect(layoutDirection(), rect(), bounds.toRect()),
                                height() / 2.0, height() / 2.0);
    }
}
