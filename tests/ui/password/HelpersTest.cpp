#include "support/DataRows.h"
#include "support/Wiped.h"
#include "ui/Widgets.h"
#include "ui/password/CStrengthBar.h"
#include "ui/password/CapsLockWatcher.h"
#include "ui/password/PasswordStrength.h"
#include "ui/password/SecretClipboard.h"
#include "ui/password/SecretFields.h"

#include <QSignalSpy>

namespace {

TEST(PasswordStrength, RatesGuessability)
{
    for (const test::Row& row : test::dataRows("ui/strength.txt")) {
        bool isNumber = false;
        const QString password = row[0].c_str();
        const double bits = password.toDouble(&isNumber);
        const auto notice = isNumber ? thisapp::strengthNotice(bits) : thisapp::strengthNotice(password);
        EXPECT_EQ(std::to_string(notice.level), row[1]) << password;
        EXPECT_EQ(kindName(notice.kind).toStdString(), row[2]) << password;
        EXPECT_EQ(notice.text.toStdString(), "Password strength: " + row[3]) << password;
    }
    EXPECT_EQ(thisapp::strengthNotice(QString()).level, 0);
}

TEST(StrengthBar, FillsAsManyFieldsAsTheLevelFromTheSideOfTheLanguage)
{
    constexpr int Fields = thisapp::HighestStrength;
    CStrengthBar bar;
    bar.resize(100, 5);
    open(bar);
    QApplication::processEvents();
    const auto filled = [&bar] {
        const QImage image = bar.screen()->grabWindow(bar.winId()).toImage();
        const QColor color = messageColor(MessageKind::Error, bar.palette());
        QString fields;
        for (int field = 0; field < Fields; ++field)
            fields += image.pixelColor(8 + 21 * field, 2) == color ? '#' : '-';
        return fields;
    };
    for (int level = 0; level <= Fields; ++level)
        for (const bool rightToLeft : {false, true}) {
            bar.showStrength({"text", MessageKind::Error, level});
            bar.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
            const QString full(level, '#'), empty(Fields - level, '-');
            const QString wanted = rightToLeft ? empty + full : full + empty;
            ASSERT_TRUE(comesTrue([&] { return filled() == wanted; })) << filled() << wanted;
        }
    EXPECT_EQ(bar.accessibleDescription(), "text");
}

TEST(SecretFields, LeaveNoCopyBehind)
{
    const QString text = "s3cr\u00e9t-", latin = "s3crzt-";
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

    QLineEdit line("secret");
    const QSignalSpy lineChanges(&line, &QLineEdit::textChanged);
    const QSignalSpy textChanges(&field, &QPlainTextEdit::textChanged);
    thisapp::clearSecret(line);
    thisapp::clearSecret(field);
    EXPECT_EQ(line.text() + field.toPlainText(), "");
    thisapp::prepareSecret(line);
    EXPECT_EQ(lineChanges.count() + textChanges.count(), 0) << "nobody is told";
}

TEST(CapsLockWatcher, LearnsFromThePlatformAndFromTheKeys)
{
    for (const test::Row& row : test::dataRows("ui/caps_lock.txt")) {
        QLineEdit field;
        CapsLockWatcher watcher([&] { return row[0] == "?" ? std::nullopt : std::optional(row[0] == "on"); });
        bool on = false;
        QObject::connect(&watcher, &CapsLockWatcher::notifyCapsLockChanged, [&on](bool now) { on = now; });
        watcher.watch(field);
        QFocusEvent focus(QEvent::FocusIn);
        QApplication::sendEvent(&field, &focus);
        for (const QString& key : QString(row[2].c_str()).split(' ', Qt::SkipEmptyParts)) {
            const bool lock = key.startsWith('!');
            QKeyEvent event(QEvent::KeyPress, lock ? Qt::Key_CapsLock : Qt::Key_unknown,
                            key.startsWith('^') ? Qt::ShiftModifier : Qt::NoModifier,
                            lock ? QString() : key.right(1), key == "!!");
            QApplication::sendEvent(&field, &event);
        }
        EXPECT_EQ(on, row[1] == "on") << row[0] << ' ' << row[2];
    }
}

TEST(SecretClipboard, ForgetsWhatItPutThereAndNothingElse)
{
    using namespace std::chrono_literals;
    auto& clipboard = *QApplication::clipboard();
    const QString secret = "s\u00e4-cret";
    const auto atTheEnd = [] { QMetaObject::invokeMethod(qApp, "aboutToQuit"); };
    const auto onTime = [] { // of two timers of one length, the later one is the last
        bool passed = false;
        QTimer::singleShot(20ms, qApp, [&passed] { passed = true; });
        EXPECT_TRUE(comesTrue([&passed] { return passed; }));
    };
    for (const bool waits : {true, false})
        for (const auto& [copiedSince, left] :
             {std::pair(QString(), ""), {"mine", "mine"}, {secret, ""}}) { // as a clipboard manager does
            thisapp::copySecret(thisapp::secretText(secret), waits ? 20ms : 1h);
            EXPECT_EQ(clipboard.text(), secret);
            EXPECT_EQ(clipboard.mimeData()->data("text/plain"), secret.toUtf8());
            EXPECT_EQ(clipboard.mimeData()->data("x-kde-passwordManagerHint"), "secret");
            for (const char* allowed : {"ExcludeClipboardContentFromMonitorProcessing",
                                        "CanIncludeInClipboardHistory", "CanUploadToCloudClipboard"})
                EXPECT_EQ(clipboard.mimeData()->data(allowed), QByteArray(4, '\0')) << allowed;
            EXPECT_FALSE(clipboard.mimeData()->hasFormat("text/html"));
            if (!copiedSince.isNull())
                clipboard.setText(copiedSince);
            waits ? onTime() : atTheEnd();
            EXPECT_EQ(clipboard.text(), left) << copiedSince;
        }
    clipboard.setText(secret);
    atTheEnd();
    EXPECT_EQ(clipboard.text(), secret) << "what the user copied later is the user's";
}

} // namespace
