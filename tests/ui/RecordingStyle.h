#pragma once

#include <QApplication>
#include <QProxyStyle>
#include <QStyleOptionButton>
#include <map>
#include <vector>

/// A style of the program that remembers what it draws.
class RecordingStyle final : public QProxyStyle
{
public:
    struct SText
    {
        QString text;
        QRect rect;
        int alignment;
        QColor color;
    };

    /// Makes one that the application owns, until the end of the test.
    static RecordingStyle& use()
    {
        auto* style = new RecordingStyle;
        QApplication::setStyle(style);
        return *style;
    }
    /// Draws the widget; what was drawn before is forgotten.
    void draw(QWidget& widget) const
    {
        texts.clear();
        primitives.clear();
        widget.grab();
    }

    void drawItemText(QPainter* painter, const QRect& rect, int alignment, const QPalette& palette,
                      bool enabled, const QString& text, QPalette::ColorRole role) const override
    {
        texts.push_back({text, rect, alignment, palette.color(role)});
        QProxyStyle::drawItemText(painter, rect, alignment, palette, enabled, text, role);
    }
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        primitives.emplace(element, option->rect);
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override
    {
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option))
            texts.push_back({button->text, button->rect, 0, {}});
        QProxyStyle::drawControl(element, option, painter, widget);
    }

    mutable std::vector<SText> texts;
    mutable std::multimap<PrimitiveElement, QRect> primitives; ///< and where

private:
    RecordingStyle() : QProxyStyle(QStringLiteral("Fusion")) {}
};
