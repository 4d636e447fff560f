#include "ui/style/CMessageLabel.h"

#include "ui/style/Announcement.h"
#include "ui/style/ThemeChange.h"

CMessageLabel::CMessageLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    thisapp::announceWhenSettled(m_announcement, *this, [this] { return text(); });
    thisapp::onThemeChange(*this, [this] { recolor(); });
}

void CMessageLabel::showMessage(const QString& text, thisapp::MessageKind kind)
{
    if (text != this->text())
        m_announcement.start();
    m_kind = kind;
    recolor();
    setText(text);
}

void CMessageLabel::recolor()
{
    QPalette updated = palette();
    updated.setColor(QPalette::WindowText, thisapp::messageColor(m_kind, window()->palette()));
    setPalette(updated);
}
