#include "app/widgets/CLineEditForFile.h"

#include "app/widgets/LegibleNames.h"
#include "ui/style/PlainToolTip.h"
#include "ui/style/ThemeChange.h"

#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QStyleOptionFrame>
#include <QStylePainter>

CLineEditForFile::CLineEditForFile(QWidget* parent) : QLineEdit(parent)
{
    setAcceptDrops(true);
    thisapp::keepLegible(*this);
    thisapp::onThemeChange(*this, [this] { thisapp::keepLegible(*this); });
    connect(this, &QLineEdit::textChanged, this, &CLineEditForFile::onUiTextChanged);
}

void CLineEditForFile::dragEnterEvent(QDragEnterEvent* event)
{
    thisapp::acceptFiles(*event);
}

/// The base class would take dragged text here.
void CLineEditForFile::dragMoveEvent(QDragMoveEvent* event)
{
    thisapp::keepFiles(*event);
}

void CLineEditForFile::dropEvent(QDropEvent* event)
{
    thisapp::dropFiles(*event, m_target);
}

void CLineEditForFile::paintEvent(QPaintEvent* event)
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    // The base class keeps two pixels to each side of the text.
    const QRect rect =
        style()->subElementRect(QStyle::SE_LineEditContents, &option, this).adjusted(2, 0, -2, 0);
    const QFontMetrics metrics = fontMetrics();
    if (hasFocus() || metrics.horizontalAdvance(text()) <= rect.width()) {
        QLineEdit::paintEvent(event);
        return;
    }
    QStylePainter painter(this);
    painter.drawPrimitive(QStyle::PE_PanelLineEdit, option);
    // A path runs from left to right in every language; it only begins at the other side.
    const auto alignment = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeading);
    painter.setLayoutDirection(Qt::LeftToRight);
    painter.drawItemText(rect, static_cast<int>(Qt::AlignVCenter | alignment), palette(), isEnabled(),
                         metrics.elidedText(text(), Qt::ElideMiddle, rect.width()), QPalette::Text);
}

void CLineEditForFile::onUiTextChanged(const QString& text)
{
    thisapp::setPlainToolTip(*this, text);
}
