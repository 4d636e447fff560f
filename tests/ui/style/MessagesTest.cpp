#include "ui/Widgets.h"
#include "ui/style/Announcement.h"
#include "ui/style/CMessageField.h"
#include "ui/style/CMessageLabel.h"
#include "ui/style/MaskedText.h"

namespace {

QStringList heard;                 ///< notifications: ! for an alert, then the text
std::vector<QAccessible::Id> told; ///< their ids
QStringList passed;                ///< texts of fields, to the platform
bool hasReader = false;
QAccessible::UpdateHandler handler = nullptr;

} // namespace

// These stand before the toolkit's, which ask the platform for a screen reader.
bool QAccessible::isActive()
{
    return hasReader;
}
QAccessible::UpdateHandler QAccessible::installUpdateHandler(UpdateHandler wanted)
{
    return std::exchange(handler, wanted);
}
void QAccessible::updateAccessibility(QAccessibleEvent* event)
{
    if (!hasReader)
        return;
    if (handler == nullptr) {
        if (auto* inserted = dynamic_cast<QAccessibleTextInsertEvent*>(event))
            passed += inserted->textInserted();
        if (auto* removed = dynamic_cast<QAccessibleTextRemoveEvent*>(event))
            passed += removed->textRemoved();
        if (auto* updated = dynamic_cast<QAccessibleTextUpdateEvent*>(event))
            passed += updated->textRemoved() + '>' + updated->textInserted();
    }
    QAccessibleInterface* source = event->accessibleInterface();
    if (source == nullptr || source->role() != QAccessible::Notification)
        return;
    heard += (event->type() == QAccessible::Alert ? "!" : "") + source->text(QAccessible::Name);
    told.push_back(event->uniqueId());
}

namespace {

TEST(Announcement, TellsTheLastMessageOnceItHasSettled)
{
    const QScopedValueRollback<bool> reader(hasReader, true);
    heard.clear();
    told.clear();
    QWidget window;
    CMessageField field(&window);
    CMessageLabel label(&window);
    label.move(0, 100);
    open(window);
    for (const char* text : {"a", "b"})
        for (int times = 0; times < 2; ++times)
            field.showMessage(text, MessageKind::Plain);
    EXPECT_TRUE(comesTrue([] { return heard.size() >= 2; }));
    label.showMessage("c", MessageKind::Plain);
    EXPECT_TRUE(comesTrue([] { return heard.size() >= 4; }));

    QTimer timer;
    QWidget hidden;
    thisapp::announceWhenSettled(timer, hidden, [] { return QString("unseen"); });
    timer.start(0);
    EXPECT_TRUE(comesTrue([&timer] { return !timer.isActive(); }));
    thisapp::announce(&field, "");
    EXPECT_EQ(heard, QStringList({"!b", "b", "!c", "c"}));

    // Kept for readers that ask later, but not for ever.
    for (int times = 0; times < 7; ++times)
        thisapp::announce(&field, "text");
    EXPECT_EQ(QAccessible::accessibleInterface(told.at(0)), nullptr);
    EXPECT_NE(QAccessible::accessibleInterface(told.at(2)), nullptr) << "the second one";
}

TEST(Announcement, TellsNoPasswords)
{
    const QScopedValueRollback<bool> reader(hasReader, true);
    thisapp::maskTextOfSecretFields();
    QLineEdit field;
    const QString bullets(3, QChar(0x2022));
    for (const auto mode : {QLineEdit::Password, QLineEdit::PasswordEchoOnEdit, QLineEdit::Normal}) {
        field.setEchoMode(mode);
        passed.clear();
        QAccessibleTextInsertEvent inserted(&field, 0, "abc");
        QAccessibleTextRemoveEvent removed(&field, 0, "abc");
        QAccessibleTextUpdateEvent updated(&field, 0, "abc", "abc");
        const std::initializer_list<QAccessibleEvent*> changes{&inserted, &removed, &updated};
        for (QAccessibleEvent* event : changes) {
            ASSERT_NE(handler, nullptr) << "for every change";
            handler(event);
        }
        const QString text = mode == QLineEdit::Normal ? "abc" : bullets;
        EXPECT_EQ(passed, QStringList({text, text, text + '>' + text}));
    }
    handler = nullptr;
}

TEST(MessageWidgets, ShowTheKindInEveryTheme)
{
    QWidget window;
    CMessageField field(&window);
    CMessageLabel label(&window);
    open(window);
    MessageKind shown = MessageKind::Plain;
    const auto bothShowIt = [&] { return shownKind(field) == shown && shownKind(label) == shown; };
    for (const char* theme : {"#ffffff", "#2a2e32", "#efefef"}) {
        QApplication::setPalette(QColor(theme));
        EXPECT_TRUE(comesTrue([&] { return window.palette().color(QPalette::Window) == theme; }));
        EXPECT_TRUE(comesTrue(bothShowIt)) << "as of this theme";
        for (const MessageKind kind : {MessageKind::Error, MessageKind::Plain, MessageKind::Warning}) {
            field.showMessage("text", shown = kind);
            label.showMessage("text", kind);
            EXPECT_TRUE(bothShowIt()) << theme << kindName(kind);
        }
    }
}

TEST(MessageField, ShowsALongMessageFromItsStartAndLetsNobodyIntoAnEmptyOne)
{
    CMessageField field;
    open(field);
    const QString text = QString("a <b>message</b> ").repeated(2);
    field.showMessage(text, MessageKind::Plain);
    EXPECT_EQ(field.cursorPosition(), 0);
    EXPECT_GE(field.minimumWidth(), field.fontMetrics().horizontalAdvance(text));
    EXPECT_EQ(field.toolTip(), Qt::convertFromPlainText(text));
    EXPECT_EQ(field.focusPolicy(), Qt::StrongFocus);
    field.showMessage("a", MessageKind::Plain);
    EXPECT_EQ(field.toolTip(), "a");
    field.clearMessage();
    EXPECT_EQ(field.focusPolicy(), Qt::NoFocus);
    EXPECT_TRUE(field.isReadOnly());
}

} // namespace
