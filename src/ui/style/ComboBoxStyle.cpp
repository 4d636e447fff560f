#include "ui/style/ComboBoxStyle.h"

#include <QComboBox>

namespace thisapp {

void applyRoundedStyle(QComboBox& box)
{
    box.setStyleSheet(QStringLiteral(
        "QComboBox {"
        " border: 1px solid palette(mid); border-radius: 0.4em; padding: 0.2em 0.6em;"
        " background-color: palette(button); color: palette(button-text); combobox-popup: 0; }"
        "QComboBox:focus, QComboBox:on { border-color: palette(highlight); }"
        "QComboBox:disabled { color: palette(mid); }"
        "QComboBox::drop-down { border: none; width: 1.6em; }"
        "QComboBox::down-arrow { width: 0; height: 0; border-left: 0.3em solid transparent;"
        " border-right: 0.3em solid transparent; border-top: 0.4em solid palette(button-text); }"));
}

} // namespace thisapp
