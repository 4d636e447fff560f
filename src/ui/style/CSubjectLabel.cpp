#include "ui/style/CSubjectLabel.h"

#include "ui/style/PlainToolTip.h"

#include <QStylePainter>
#include <algorithm>

namespace {

/// Control characters, such as line breaks, are legal in names.
QString oneLine(QString name)
{
    for (QChar& c : name)
        if (c.category() == QChar::Other_Control || c == QChar::LineSeparator ||
            c == QChar::ParagraphSeparator)
            c = QChar::ReplacementCharacter;
    return name;
}

} // namespace

CSubjectLabel::CSubjectLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // a long name widens no dialog
    hide();
}

void CSubjectLabel::setSubject(const QString& fileName, int others)
{
    m_fileName = oneLine(fileName);
    m_others = others > 0 ? QLatin1Char(' ') + tr("and %Ln more", "", others) : QString();
    setText(m_fileName + m_others);
    thisapp::setPlainToolTip(*this, text());
    setVisible(!fileName.isEmpty());
}

QSize CSubjectLabel::minimumSizeHint() const
{
    constexpr int LeastCharacters = 16;
    const int width = fontMetrics().averageCharWidth() * LeastCharacters;
    return {std::min(width, sizeHint().width()), QLabel::minimumSizeHint().height()};
}

void CSubjectLabel::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    const int room = contentsRect().width() - fontMetrics().horizontalAdvance(m_others);
    const QString shown = fontMetrics().elidedText(m_fileName, Qt::ElideMiddle, room) + m_others;
    painter.drawItemText(contentsRect(), static_cast<int>(Qt::AlignLeading | Qt::AlignVCenter), palette(),
                         isEnabled(), shown, foregroundRole());
}
