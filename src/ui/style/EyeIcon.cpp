#include "ui/style/EyeIcon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace thisapp {

namespace {

/// On a square of 24 units.
void drawEye(QPainter& painter, bool crossed)
{
    QPainterPath outline(QPointF(2.5, 12));
    outline.cubicTo(QPointF(6, 4.5), QPointF(18, 4.5), QPointF(21.5, 12));
    outline.cubicTo(QPointF(18, 19.5), QPointF(6, 19.5), QPointF(2.5, 12));
    painter.drawPath(outline);
    painter.drawEllipse(QPointF(12, 12), 3.2, 3.2);
    if (crossed)
        painter.drawLine(QPointF(4.5, 20), QPointF(19.5, 4));
}

class EyeIconEngine final : public QIconEngine
{
public:
    explicit EyeIconEngine(bool crossed) : m_crossed(crossed) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / 24.0, rect.height() / 24.0);
        painter->setPen(QPen(QGuiApplication::palette().color(group, QPalette::Text), 1.7, Qt::SolidLine,
                             Qt::RoundCap, Qt::RoundJoin));
        drawEye(*painter, m_crossed);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new EyeIconEngine(m_crossed); }

private:
    bool m_crossed;
};

} // namespace

QIcon eyeIcon(bool crossed)
{
    return QIcon(new EyeIconEngine(crossed));
}

} // namespace thisapp
