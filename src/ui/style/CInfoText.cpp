#include "ui/style/CInfoText.h"

#include "ui/style/TextDirection.h"
#include "ui/style/ThemeChange.h"

#include <QtMath>

CInfoText::CInfoText(QWidget* parent) : QTextEdit(parent)
{
    setReadOnly(true);
    setAcceptRichText(false);
    setFocusPolicy(Qt::ClickFocus);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    document()->setDocumentMargin(0);
    thisapp::onThemeChange(*this, [this] { setStyleSheet(styleSheet()); });
}

void CInfoText::showText(const QString& text)
{
    setPlainText(text);
    thisapp::followLanguageSide(*document());
    document()->setTextWidth(-1);
    setMinimumWidth(qCeil(document()->idealWidth()));
    setFixedHeight(qCeil(document()->size().height()));
    document()->setTextWidth(viewport()->width());
}
