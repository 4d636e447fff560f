#include "ui/style/PlainToolTip.h"

#include <QTextDocument>
#include <QWidget>

namespace thisapp {

void setPlainToolTip(QWidget& widget, const QString& text)
{
    widget.setToolTip(Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text);
}

} // namespace thisapp
