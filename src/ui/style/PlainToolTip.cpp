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
    const QString text = widget.accessibleDescription();
    widget.setToolTip(text.isEmpty() ? text : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal));
}

void showDescriptionsAsToolTips(QWidget& form)
{
    for (QWidget* widget : form.findChildren<QWidget*>())
        if (!widget->accessibleDescription().isEmpty())
            showDescriptionAsToolTip(*widget);
}

} // namespace thisapp
