#include "ui/style/PlainToolTip.h"

#include <QTextDocument>
#include <QWidget>

namespace thisapp {

void setPlainToolTip(QWidget& widget, const QString& text)
{
    widget.setToolTip(Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text);
}

void showDescriptionAsToolTip(QWidget& widget)
{
    // Qt breaks only rich text into lines.
    widget.setToolTip(Qt::convertFromPlainText(widget.accessibleDescription(), Qt::WhiteSpaceNormal));
}

void showDescriptionsAsToolTips(QWidget& form)
{
    for (QWidget* widget : form.findChildren<QWidget*>())
        if (!widget->accessibleDescription().isEmpty())
            showDescriptionAsToolTip(*widget);
}

} // namespace thisapp
