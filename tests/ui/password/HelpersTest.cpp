#include "support/Wiped.h"
#include "ui/Widgets.h"
#include "ui/password/CStrengthBar.h"
#include "ui/password/CapsLockWatcher.h"
#include "ui/password/PasswordStrength.h"
#include "ui/password/SecretClipboard.h"
#include "ui/password/SecretFields.h"

#include <QClipboard>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QSignalSpy>

namespace {

using thisapp::MessageKind;

TEST(PasswordStrength, RatesGuessability)
{
    const std::pair<const char*, int> cases[] = {
        {"password", 1},
        {"quilletquillet", 1},
        {"aaaaaaaaaaaaaaaaaaaaaaaa", 1},
        {"Tr0ub4dor&3", 3},
        {"correct horse battery staple", 5},
        {"kq8#Zp2!vLw9", 5},
        {"пароль", 1}, // no more than six letters of Latin
        {"", 0},
    };
    for (const auto& [password, level] : cases)
        EXPECT_EQ(thisapp::strengthNotice(password).level, level) << password;

    const struct
    {
        double bits;
        const char* text;
        MessageKind kind;
        int level;
    } rows[] = {
        {0, "very weak, guessed at once.", MessageKind::Error, 1},
        {32.9, "very weak, guessed at once.", MessageKind::Error, 1},
        {33, "weak, guessed within hours.", MessageKind::Error, 2},
        {45.9, "weak, guessed within hours.", MessageKind::Error, 2},
        {46, "fair, guessed within a year.", MessageKind::Warning, 3},
        {57.9, "fair, guessed within a year.", MessageKind::Warning, 3},
        {58, "strong.", MessageKind::Success, 4},
        {69.9, "strong.", MessageKind::Success, 4},
        {70, "very strong.", MessageKind::Success, thisapp::HighestStrength},
    };
    for (const auto& row : rows) {
        const thisapp::SStrengthNotice notice = thisapp::strengthNotice(row.bits);
        EXPECT_EQ(notice.text, QString("Password strength: ") + row.text) << row.bits;
        EXPECT_EQ(notice.kind, row.kind) << row.bits;
        EXPECT_EQ(notice.level, row.level) << row.bits;
    }
}

struct Paints : QObject
{
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int count = 0;
};

TEST(StrengthBar, FillsAsManyFieldsAsTheLevelFromTheSideOfTheLanguage)
{
    CStrengthBar bar;
    bar.resize(100, 5);
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft})
        for (int level = 0; level <= thisapp::HighestStrength; ++level) {
            bar.setLayoutDirection(direction);
            bar.showStrength({"text", MessageKind::Error, level});
            const QImage image = bar.grab().toImage();
            QString filled;
            for (int field = 0; field < thisapp::HighestStrength; ++field)
                filled +=
                    image.pixelColor(8 + 21 * field, 2) == messageColor(MessageKind::Error, bar.palette())
                        ? '#'
                        : '-';
            const QString expected = QString(level, '#').leftJustified(thisapp::HighestStrength, '-');
            EXPECT_EQ(filled, direction == Qt::LeftToRight
                                  ? expected
                                  : QString(level, '#').rightJustified(thisapp::HighestStrength, '-'));
        }
    EXPECT_EQ(bar.accessibleDescription(), "text");
    Paints paints;
    bar.installEventFilter(&paints);
    open(bar);
    EXPECT_TRUE(comesTrue([&paints] { return paints.count > 0; }));
    QApplication::processEvents();
    paints.count = 0;
    bar.showStrength({});
    EXPECT_TRUE(comesTrue([&paints] { return paints.count > 0; }));
}

TEST(SecretFields, LeaveNoCopyBehind)
{
    const QString text = QString::fromUtf8("s3cr\xc3\xa9t-");
    const QString latin = "s3crzt-";
    const QByteArray utf8 = text.toUtf8();
    QPlainTextEdit field;
    tessaly::SecretText kept;
    const auto wiped = [](const auto& copy, const auto& work) {
        const test::Wiped log;
        work();
        return log.contains(copy.constData(),
                            static_cast<std::size_t>(copy.size()) * sizeof(copy.constData()[0]));
    };
    EXPECT_TRUE(wiped(utf8, [&] { kept = thisapp::secretText(text); }));
    EXPECT_TRUE(wiped(text, [&] { thisapp::setTypedText(field, kept); }));
    EXPECT_TRUE(wiped(text, [&] { kept = thisapp::typedText(field); }));
    EXPECT_TRUE(wiped(latin, [&] { (void)thisapp::strengthNotice(text); }));
    QString literal = QStringLiteral("in read-only memory");
    thisapp::wipe(literal);
    EXPECT_TRUE(literal.isNull());
}

TEST(SecretFields, AreEmptiedWithoutTellingAnybody)
{
    QLineEdit line("secret");
    QPlainTextEdit text("secret");
    QSignalSpy lineChanges(&line, &QLineEdit::textChanged);
    QSignalSpy textChanges(&text, &QPlainTextEdit::textChanged);
    thisapp::clearSecret(line);
    thisapp::clearSecret(text);
    EXPECT_EQ(line.text() + text.toPlainText(), "");
    thisapp::prepareSecret(line);
    EXPECT_EQ(lineChanges.count() + textChanges.count(), 0);
}

/// A key press of the form "a", "^a" (with Shift), "!" for the Caps Lock key or "!!" for that held.
void send(QObject& field, const QString& key)
{
    const bool shift = key.startsWith('^');
    const bool lock = key.startsWith('!');
    QKeyEvent event(QEvent::KeyPress, lock ? Qt::Key_CapsLock : Qt::Key_unknown,
                    shift ? Qt::ShiftModifier : Qt::NoModifier, lock ? QString() : key.right(1), key == "!!");
    QApplication::sendEvent(&field, &event);
}

TEST(CapsLockWatcher, LearnsFromThePlatformAndFromTheKeys)
{
    struct
    {
        std::optional<bool> platform;
        const char* keys;
        bool on;
    } const cases[] = {
        {std::nullopt, "", false},
        {std::nullopt, "a", false},
        {std::nullopt, "A", true},
        {std::nullopt, "^A", false},
        {std::nullopt, "^a", true},
        {std::nullopt, "1 ^!", false},
        {std::nullopt, "!", false},
        {std::nullopt, "A !", false},
        {std::nullopt, "a !", true},
        {std::nullopt, "A 1 b", false},
        {std::nullopt, "a ! !!", true},
        {true, "", true},
        {true, "a", false},
        {true, "!", false},
        {false, "! !", false},
    };
    for (const auto& test : cases) {
        QLineEdit field;
        CapsLockWatcher watcher([&test] { return test.platform; });
        bool on = false;
        QObject::connect(&watcher, &CapsLockWatcher::notifyCapsLockChanged, [&on](bool now) { on = now; });
        watcher.watch(field);
        QFocusEvent focus(QEvent::FocusIn);
        QApplication::sendEvent(&field, &focus);
        for (const QString& key : QString(test.keys).split(' ', Qt::SkipEmptyParts))
            send(field, key);
        EXPECT_EQ(on, test.on) << test.keys;
    }
}

TEST(SecretClipboard, ForgetsWhatItPutThereAndNothingElse)
{
    using namespace std::chrono_literals;
    auto& clipboard = *QApplication::clipboard();
    const QString secret = QString::fromUtf8("s\xc3\xa4-cret");
    const auto onTime = [] { // of two timers of one length, the later one is the last
        bool passed = false;
        QTimer::singleShot(20ms, qApp, [&passed] { passed = true; });
        EXPECT_TRUE(comesTrue([&passed] { return passed; }));
    };
    const auto atTheEnd = [] { QMetaObject::invokeMethod(qApp, "aboutToQuit"); };
    const std::function<void()> ways[] = {onTime, atTheEnd};
    for (const auto& pass : ways)
        for (const auto& [copiedSince, left] :
             {std::pair(QString(), ""), {"mine", "mine"}, {secret, ""}}) { // as a clipboard manager does
            thisapp::copySecret(thisapp::secretText(secret), &pass == ways ? 20ms : 1h);
            EXPECT_EQ(clipboard.text(), secret);
            EXPECT_EQ(clipboard.mimeData()->data("text/plain"), secret.toUtf8());
            EXPECT_EQ(clipboard.mimeData()->data("x-kde-passwordManagerHint"), "secret");
            EXPECT_FALSE(clipboard.mimeData()->hasFormat("text/html"));
            if (!copiedSince.isNull())
                clipboard.setText(copiedSince);
            pass();
            EXPECT_EQ(clipboard.text(), left) << copiedSince;
        }
    clipboard.setText(secret);
    atTheEnd();
    EXPECT_EQ(clipboard.text(), secret) << "what the user copied later is the user's";
}

} // namespace
