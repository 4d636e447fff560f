#include "app/widgets/SymbolicIcon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

// Outside every namespace, as the macro declares a global function.
static void initIconResources()
{
    Q_INIT_RESOURCE(quillet);
}

namespace thisapp {

namespace {

QString resourcePath(const QString& name)
{
    static const bool ready = (initIconResources(), true);
    Q_UNUSED(ready)
    return QStringLiteral(":/icons/%1.svg").arg(name);
}

/// `size` in device pixels.
QPixmap tinted(const QString& name, const QSize& size, const QColor& color)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    QSvgRenderer(resourcePath(name)).render(&painter, QRectF(QPointF(), size));
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), color);
    return pixmap;
}

class SymbolicIconEngine final : public QIconEngine
{
public:
    explicit SymbolicIconEngine(QString name) : m_name(std::move(name)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal ratio = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override
    {
        const QPalette palette = QGuiApplication::palette();
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText;
        return tinted(m_name, size, palette.color(group, role));
    }

    QIconEngine* clone() const override { return new SymbolicIconEngine(m_name); }

private:
    QString m_name;
};

} // namespace

QIcon symbolicIcon(const QString& name)
{
    return QIcon(new SymbolicIconEngine(name));
}

QPixmap symbolicPixmap(const QString& name, int size, const QColor& color, qreal devicePixelRatio)
{
    QPixmap pixmap = tinted(name, (QSizeF(size, size) * devicePixelRatio).toSize(), color);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

QIcon applicationIcon()
{
    return QIcon(resourcePath(QStringLiteral("quillet")));
}

} // namespace thisapp
