#include "app/widgets/LegibleNames.h"

#include <QGuiApplication>
#include <QPalette>
#include <QWidget>

namespace thisapp {

void keepLegible(QWidget& widget)
{
    QPalette palette = QGuiApplication::palette();
    for (const auto role : {QPalette::WindowText, QPalette::Text})
        palette.setColor(QPalette::Disabled, role, palette.color(QPalette::Active, role));
    widget.setPalette(palette);
}

} // namespace thisapp
