#include "app/widgets/CMessageLine.h"

#include "app/widgets/SymbolicIcon.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>

using thisapp::MessageKind;

namespace {

const char* glyphName(MessageKind kind)
{
    switch (kind) {
    case MessageKind::Success:
        return "success";
    case MessageKind::Warning:
        return "warning";
    case MessageKind::Error:
        return "error";
    case MessageKind::Plain:
        break;
    }
    return nullptr;
}

} // namespace

CMessageLine::CMessageLine(QWidget* parent) : QFrame(parent), m_glyph(new QLabel), m_text(new QLabel)
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_glyph, 0, Qt::AlignTop);
    layout->addWidget(m_text, 1);

    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    refresh();
}

void CMessageLine::setMessage(thisapp::Message message)
{
    m_message = std::move(message);
    refresh();
}

QString CMessageLine::text() const
{
    return m_text->text();
}

void CMessageLine::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::PaletteChange ||
        event->type() == QEvent::FontChange)
        refresh();
}

void CMessageLine::refresh()
{
    const QColor color = thisapp::messageColor(m_message.kind, palette());
    QPalette textPalette = palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        textPalette.setColor(group, QPalette::WindowText, color);
    m_text->setPalette(textPalette);
    m_text->setText(m_message.now());
    setMinimumHeight(fontMetrics().height());

    const char* glyph = m_message.isEmpty() ? nullptr : glyphName(m_message.kind);
    m_glyph->setVisible(glyph != nullptr);
    if (glyph != nullptr)
        m_glyph->setPixmap(
            thisapp::symbolicPixmap(glyph, fontMetrics().height(), color, devicePixelRatioF()));
}
