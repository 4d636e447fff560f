#include "ui/style/CRoundedComboBox.h"

#include "ui/style/ThemeChange.h"
#include "ui/style/WheelGuard.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QStyleOption>

CRoundedComboBox::CRoundedComboBox(QWidget* parent) : QComboBox(parent)
{
    thisapp::guardFromWheel(*this);
    setStyleSheet(
        QStringLiteral("QComboBox {"
                       " border: 1px solid palette(mid); border-radius: 0.4em; padding: 0.2em 0.6em;"
                       " background-color: palette(button); combobox-popup: 0; }"
                       "QComboBox:focus, QComboBox:on { border-color: palette(highlight); }"
                       "QComboBox::drop-down { border: none; width: 1.6em; }"));
    thisapp::onThemeChange(*this, [this] { setStyleSheet(styleSheet()); });
}

void CRoundedComboBox::showEvent(QShowEvent* event)
{
    for (auto* list : findChildren<QAbstractItemView*>())
        list->setAccessibleName(accessibleName());
    QComboBox::showEvent(event);
}

// A style sheet can show the arrow only from an image, which knows no palette.
void CRoundedComboBox::paintEvent(QPaintEvent* event)
{
    QComboBox::paintEvent(event);
    const int size = fontMetrics().averageCharWidth() * 2;
    QStyleOption option;
    option.initFrom(this);
    const QPoint end(width() - size, height() / 2);
    option.rect = QStyle::visualRect(layoutDirection(), rect(),
                                     QRect(end.x() - size / 2, end.y() - size / 2, size, size));
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &option, &painter);
}
