#include "ui/style/CMessageField.h"

#include "ui/style/PlainToolTip.h"
#include "ui/style/ThemeChange.h"

CMessageField::CMessageField(QWidget* parent) : QLineEdit(parent)
{
    setReadOnly(true);
    setFrame(false);
    thisapp::onThemeChange(*this, [this] {
        setStyleSheet(styleSheet());
        recolor();
    });
}

void CMessageField::showMessage(const QString& text, thisapp::MessageKind kind)
{
    m_kind = kind;
    recolor();
    setText(text);
    setCursorPosition(0);
    thisapp::setPlainToolTip(*this, text);
}

void CMessageField::recolor()
{
    QPalette updated = palette();
    updated.setColor(QPalette::Text, thisapp::messageColor(m_kind, window()->palette()));
    setPalette(updated);
}
