#include "ui/style/InfoText.h"

#include <QTextDocument>
#include <QTextEdit>
#include <QtMath>

namespace thisapp {

void setInfoText(QTextEdit& edit, const QString& text)
{
    edit.setPlainText(text);
    QTextDocument& document = *edit.document();
    document.setDocumentMargin(0);
    document.setTextWidth(-1);
    const int frame = 2 * edit.frameWidth();
    edit.setMinimumWidth(qCeil(document.idealWidth()) + frame);
    edit.setFixedHeight(qCeil(document.size().height()) + frame);
}

} // namespace thisapp
