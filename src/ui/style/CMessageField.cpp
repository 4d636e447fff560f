#include "ui/style/CMessageField.h"

#include "ui/style/Announcement.h"
#include "ui/style/PlainToolTip.h"
#include "ui/style/ThemeChange.h"

#include <QScreen>

#include <algorithm>

CMessageField::CMessageField(QWidget* parent) : QLineEdit(parent)
{
    setReadOnly(true);
    setFrame(false);
    setFocusPolicy(Qt::NoFocus);
    constexpr int InnerMargin = 2; // Qt's own, which would set the text off from what stands above
    setTextMargins(-InnerMargin, 0, -InnerMargin, 0);
    thisapp::announceWhenSettled(m_announcement, *this, [this] { return text(); });
    thisapp::onThemeChange(*this, [this] {
        setStyleSheet(styleSheet());
        recolor();
    });
}

void CMessageField::showMessage(const QString& text, thisapp::MessageKind kind)
{
    if (text != this->text())
        m_announcement.start();
    m_kind = kind;
    recolor();
    setText(text);
    setFocusPolicy(text.isEmpty() ? Qt::NoFocus : Qt::StrongFocus);
    setCursorPosition(0);
    fitText();
    thisapp::setPlainToolTip(*this, text);
}

/// The dialog grows with the text, as far as the screen lets it.
void CMessageField::fitText()
{
    const int room = window()->screen()->availableSize().width() * 3 / 4;
    setMinimumWidth(std::min(fontMetrics().horizontalAdvance(text()) + fontMetrics().maxWidth() / 2, room));
}

void CMessageField::recolor()
{
    QPalette updated = palette();
    updated.setColor(QPalette::Text, thisapp::messageColor(m_kind, window()->palette()));
    setPalette(updated);
}
