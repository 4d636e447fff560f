#include "ui/password/CHexEdit.h"

#include "ui/style/MessageStyle.h"
#include "ui/style/ThemeChange.h"

#include <QFontDatabase>
#include <QKeyEvent>
#include <QMimeData>
#include <QStyle>
#include <algorithm>

namespace {

/// As encodeHex writes them: 32 bytes are 71 characters.
constexpr std::uint32_t BytesPerLine = 32;
constexpr int CharactersPerLine = 71;

} // namespace

CHexEdit::CHexEdit(QWidget* parent) : QPlainTextEdit(parent)
{
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setInputMethodHints(Qt::ImhSensitiveData | Qt::ImhNoPredictiveText | Qt::ImhPreferLatin);
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    thisapp::onThemeChange(*this, [this] { recolor(); });
}

void CHexEdit::setExpectedLength(std::uint32_t length)
{
    m_expectedLength = length;
    updateGeometry();
}

void CHexEdit::showValidity(std::optional<bool> valid)
{
    if (valid == m_valid) // applying a style sheet is slow
        return;
    m_valid = valid;
    recolor();
}

void CHexEdit::insertFromMimeData(const QMimeData* source)
{
    const int room = MostText - document()->characterCount() + textCursor().selectedText().size();
    const QString text = source->text();
    if (text.size() <= room)
        return QPlainTextEdit::insertFromMimeData(source);
    QMimeData cut;
    cut.setText(text.left(room));
    QPlainTextEdit::insertFromMimeData(&cut);
}

void CHexEdit::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && !event->modifiers().testFlag(Qt::ShiftModifier))
        emit notifyEntered();
    else
        QPlainTextEdit::keyPressEvent(event);
}

void CHexEdit::recolor()
{
    if (!m_valid)
        return setStyleSheet(QString());
    const QColor color = thisapp::fieldColor(*m_valid, window()->palette());
    setStyleSheet(QStringLiteral("QPlainTextEdit {background-color: rgb(%1, %2, %3)}")
                      .arg(color.red())
                      .arg(color.green())
                      .arg(color.blue()));
}

QSize CHexEdit::sizeHint() const
{
    const auto lines = static_cast<int>(std::max(2U, (m_expectedLength + BytesPerLine - 1) / BytesPerLine));
    const int margins = 2 * (frameWidth() + static_cast<int>(document()->documentMargin()));
    const int width = fontMetrics().horizontalAdvance(QString(CharactersPerLine + 1, QLatin1Char('0')));
    return {width + margins + style()->pixelMetric(QStyle::PM_ScrollBarExtent),
            fontMetrics().lineSpacing() * (2 * lines + 1) / 2 + margins};
}

QSize CHexEdit::minimumSizeHint() const
{
    constexpr int Characters = 36;
    const QSize wanted = sizeHint();
    return {std::min(wanted.width(), fontMetrics().averageCharWidth() * Characters),
            std::min(wanted.height(), fontMetrics().lineSpacing() * 5 / 2)};
}
