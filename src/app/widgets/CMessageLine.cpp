#include "app/widgets/CMessageLine.h"

#include "app/widgets/CElidedLabel.h"
#include "app/widgets/SymbolicIcon.h"
#include "ui/style/Announcement.h"
#include "ui/style/CLinkLabel.h"
#include "ui/style/TextDirection.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

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

CMessageLine::CMessageLine(QWidget* parent)
    : QFrame(parent),
      m_glyph(new QLabel),
      m_text(new QLabel),
      m_detail(new CElidedLabel),
      m_link(new CLinkLabel)
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_glyph, 0, Qt::AlignTop);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addWidget(m_text);
    texts->addWidget(m_detail);
    layout->addLayout(texts, 1);
    layout->addWidget(m_link, 0, Qt::AlignTop);
    connect(m_link, &QLabel::linkActivated, this, &CMessageLine::onUiFollow);

    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    // A result comes while the window gets the focus back, and a reader drops what comes with that.
    thisapp::announceWhenSettled(m_speech, *this, [this] {
        return detail().isEmpty() ? text() : text() + QStringLiteral(". ") + detail();
    });
    refresh();
}

void CMessageLine::setMessage(thisapp::Message message)
{
    m_message = std::move(message);
    refresh();
    if (m_isAnnounced)
        m_speech.start();
}

void CMessageLine::setFieldText(const QString& text)
{
    m_fieldText = text;
    refresh();
}

QString CMessageLine::detail() const
{
    if (m_message.detail)
        return m_message.detail();
    const bool isHere = m_fieldText == m_message.file || m_fieldText.trimmed() == m_message.file;
    return isHere ? QString() : m_message.file;
}

QString CMessageLine::text() const
{
    return m_text->text();
}

void CMessageLine::onUiFollow()
{
    const auto follow = m_message.follow; // which may bring another message
    if (follow)
        follow();
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
    m_text->setText(thisapp::atLanguageSide(m_message.now()));
    m_text->setVisible(!text().isEmpty()); // nothing to come to
    setMinimumHeight(fontMetrics().height());
    m_detail->setWholeText(detail());
    m_detail->setVisible(!detail().isEmpty());
    m_link->setVisible(static_cast<bool>(m_message.link));
    m_link->setLinkText(m_message.link ? m_message.link() : QString());

    const char* glyph = m_message.isEmpty() ? nullptr : glyphName(m_message.kind);
    m_glyph->setVisible(glyph != nullptr);
    if (glyph != nullptr)
        m_glyph->setPixmap(
            thisapp::symbolicPixmap(glyph, fontMetrics().height(), color, devicePixelRatioF()));
}
