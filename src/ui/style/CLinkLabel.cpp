#include "ui/style/CLinkLabel.h"

#include "ui/style/MessageStyle.h"
#include "ui/style/ThemeChange.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace {

constexpr char Target[] = "#";

class AccessibleLink final : public QAccessibleWidget
{
public:
    explicit AccessibleLink(CLinkLabel* label) : QAccessibleWidget(label, QAccessible::Link) {}

    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& name) override
    {
        if (name == pressAction())
            static_cast<CLinkLabel*>(widget())->follow();
        else
            QAccessibleWidget::doAction(name);
    }
};

QAccessibleInterface* makeAccessible(const QString&, QObject* object)
{
    auto* label = qobject_cast<CLinkLabel*>(object);
    return label != nullptr ? new AccessibleLink(label) : nullptr;
}

} // namespace

CLinkLabel::CLinkLabel(QWidget* parent) : QLabel(parent)
{
    static const bool known = (QAccessible::installFactory(makeAccessible), true);
    Q_UNUSED(known)
    setTextFormat(Qt::RichText);
    setTextInteractionFlags(Qt::LinksAccessibleByMouse);
    setFocusPolicy(Qt::StrongFocus);
    thisapp::onThemeChange(*this, [this] { setLinkText(accessibleName()); });
}

void CLinkLabel::setLinkText(const QString& text)
{
    setText(QStringLiteral("<a href=\"%1\" style=\"color:%2\">%3</a>")
                .arg(QLatin1String(Target), thisapp::linkColor(palette()).name(), text.toHtmlEscaped()));
    setAccessibleName(text);
}

void CLinkLabel::follow()
{
    emit linkActivated(QLatin1String(Target));
}

void CLinkLabel::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space)
        follow();
    else
        QLabel::keyPressEvent(event);
}

void CLinkLabel::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QStylePainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}
