#include "ui/Widgets.h"
#include "ui/password/CapsLockWatcher.h"
#include "ui/password/PasswordStrength.h"
#include "ui/password/SecretClipboard.h"

#include <QClipboard>
#include <QLineEdit>
#include <QMimeData>

namespace {

TEST(PasswordStrength, RatesGuessability)
{
    const std::pair<const char*, const char*> cases[] = {
        {"password", "very weak, guessed at once."},
        {"Quillet1", "very weak, guessed at once."},
        {"aaaaaaaaaaaaaaaaaaaaaaaa", "very weak, guessed at once."},
        {"Tr0ub4dor&3", "fair, guessed within a year."},
        {"correct horse battery staple", "very strong."},
        {"kq8#Zp2!vLw9", "very strong."},
        {"пароль", "very weak, guessed at once."}, // no more than six letters of Latin
    };
    for (const auto& [password, strength] : cases)
        EXPECT_EQ(thisapp::strengthNotice(password).text, QString("Password strength: ") + strength)
            << password;
    EXPECT_EQ(thisapp::strengthNotice("").text, "");
}

/// A key press of the form "a", "^a" (with Shift) or "!" for the Caps Lock key.
void send(QObject& field, const QString& key)
{
    const bool shift = key.startsWith('^');
    QKeyEvent event(QEvent::KeyPress, key == "!" ? Qt::Key_CapsLock : Qt::Key_unknown,
                    shift ? Qt::ShiftModifier : Qt::NoModifier, key == "!" ? QString() : key.right(1));
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
    const auto& clipboard = *QApplication::clipboard();
    const auto afterwards = [&clipboard](const char* copiedSince) {
        thisapp::copySecret(tessaly::SecretText("s\xc3\xa4"
                                                "cret"),
                            20ms);
        EXPECT_EQ(clipboard.text(), QString::fromUtf8("s\xc3\xa4"
                                                      "cret"));
        EXPECT_TRUE(clipboard.mimeData()->hasFormat("x-kde-passwordManagerHint"));
        if (copiedSince != nullptr)
            QApplication::clipboard()->setText(QString::fromUtf8(copiedSince));
        QTest::qWait(60);
        return clipboard.text();
    };
    EXPECT_EQ(afterwards(nullptr), "");
    EXPECT_EQ(afterwards("mine"), "mine");
    EXPECT_EQ(afterwards("s\xc3\xa4"
                         "cret"),
              "")
        << "as a clipboard manager does";
}

} // namespace
