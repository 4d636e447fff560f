#include "ui/Widgets.h"
#include "ui/style/Announcement.h"
#include "ui/style/CMessageField.h"
#include "ui/style/CMessageLabel.h"
#include "ui/style/MaskedText.h"

namespace {

struct SHeard
{
    QAccessible::Event event;
    QString text;
    QAccessible::Id id;
};

std::vector<SHeard> heard; ///< notifications
QStringList passed;        ///< texts of fields, to the platform
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
    if (handler == nullptr && event->type() == QAccessible::TextInserted)
        passed += static_cast<QAccessibleTextInsertEvent*>(event)->textInserted();
    if (handler == nullptr && event->type() == QAccessible::TextRemoved)
        passed += static_cast<QAccessibleTextRemoveEvent*>(event)->textRemoved();
    if (handler == nullptr && event->type() == QAccessible::TextUpdated)
        passed += static_cast<QAccessibleTextUpdateEvent*>(event)->textRemoved() + '>' +
                  static_cast<QAccessibleTextUpdateEvent*>(event)->textInserted();
    QAccessibleInterface* source = event->accessibleInterface();
    if (source != nullptr && source->role() == QAccessible::Notification)
        heard.push_back({event->type(), source->text(QAccessible::Name), event->uniqueId()});
}

namespace {

/// What a screen reader is told.
struct Announcement : testing::Test
{
    Announcement()
    {
        heard.clear();
        hasReader = true;
    }
    ~Announcement() override { hasReader = false; }
    static QString heardTexts()
    {
        QString texts;
        for (const SHeard& each : heard)
            texts += each.text;
        return texts;
    }
};

TEST_F(Announcement, TellsTheLastMessageOnceItHasSettled)
{
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
    ASSERT_EQ(heardTexts(), "bbcc");
    EXPECT_EQ(heard[0].event, QAccessible::Alert);
    EXPECT_EQ(heard[1].event, QAccessible::ObjectShow);

    heard.clear();
    QTimer timer;
    QWidget hidden;
    thisapp::announceWhenSettled(timer, hidden, [] { return QString("unseen"); });
    timer.start(0);
    EXPECT_TRUE(comesTrue([&timer] { return !timer.isActive(); }));
    thisapp::announce(&field, "");
    EXPECT_EQ(heardTexts(), "");
}

TEST_F(Announcement, IsKeptForReadersThatAskLaterButNotForEver)
{
    QWidget source;
    for (int times = 0; times < 9; ++times)
        thisapp::announce(&source, "text");
    ASSERT_EQ(heard.size(), 18U);
    EXPECT_EQ(QAccessible::accessibleInterface(heard.front().id), nullptr);
    EXPECT_NE(QAccessible::accessibleInterface(heard[2].id), nullptr) << "the second one";
}

TEST_F(Announcement, TellsNoPasswords)
{
    thisapp::maskTextOfSecretFields();
    QLineEdit field;
    const QString bullets(3, QChar(0x2022));
    for (const auto mode : {QLineEdit::Password, QLineEdit::PasswordEchoOnEdit, QLineEdit::Normal}) {
        field.setEchoMode(mode);
        passed.clear();
        QAccessibleTextInsertEvent inserted(&field, 0, "abc");
        QAccessibleTextRemoveEvent removed(&field, 0, "abc");
        QAccessibleTextUpdateEvent updated(&field, 0, "abc", "abc");
        for (QAccessibleEvent* event :
             std::initializer_list<QAccessibleEvent*>{&inserted, &removed, &updated}) {
            ASSERT_NE(handler, nullptr) << "for every change";
            handler(event);
        }
        const QString told = mode == QLineEdit::Normal ? "abc" : bullets;
        EXPECT_EQ(passed, QStringList({told, told, told + '>' + told}));
    }
    handler = nullptr;
}

template <class Widget>
struct MessageWidgets : testing::Test
{
};
using Both = testing::Types<CMessageField, CMessageLabel>;
TYPED_TEST_SUITE(MessageWidgets, Both);

TYPED_TEST(MessageWidgets, ShowTheKindInEveryTheme)
{
    QWidget window;
    TypeParam widget(&window);
    open(window);
    for (const char* theme : {"#ffffff", "#2a2e32", "#efefef"}) {
        const MessageKind before = shownKind(widget);
        QApplication::setPalette(QColor(theme));
        EXPECT_TRUE(comesTrue([&] { return window.palette().color(QPalette::Window) == theme; }));
        EXPECT_TRUE(comesTrue([&] { return shownKind(widget) == before; })) << "as of this theme";
        for (const MessageKind kind : {MessageKind::Error, MessageKind::Plain, MessageKind::Warning}) {
            widget.showMessage("text", kind);
            EXPECT_EQ(shownKind(widget), kind) << theme;
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
