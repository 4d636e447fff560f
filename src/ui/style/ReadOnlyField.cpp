#include "ui/style/ReadOnlyField.h"

#include <QLineEdit>
#include <QPalette>

namespace thisapp {

void showAsReadOnly(QLineEdit& field)
{
    field.setReadOnly(true);
    QPalette palette = field.palette();
    palette.setColor(QPalette::Base, Qt::transparent);
    field.setPalette(palette);
}

} // namespace thisapp
