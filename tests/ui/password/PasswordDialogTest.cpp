#include "ui/Widgets.h"
#include "ui/password/CSetPasswordDialog.h"
#include "ui/style/CLinkLabel.h"
#include "ui/style/EyeIcon.h"

#include <QAction>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QTextEdit>
#include <memory>
#include <utility>

namespace {

/// The dialog, set up for an encryption with confirmation, with its widgets at hand.
struct PasswordDialog : testing::Test
{
    PasswordDialog() { dialog.setAlgorithmName("AES-256"); }

    QString message() { return child<QLineEdit>(dialog, "lineEditMsg").text(); }

    CSetPasswordDialog dialog;
    QLineEdit& password = child<QLineEdit>(dialog, "lineEditPassword");
    QLineEdit& confirmation = child<QLineEdit>(dialog, "lineEditConfirmPassword");
};

TEST_F(PasswordDialog, ShowsAMismatchWhileTypingAndStaysOpen)
{
    struct
    {
        const char* password;
        const char* confirmation;
        const char* message; ///< empty: the dialog closes
    } const cases[] = {
        {"abc", "abd", "The passwords do not match. Password length: 3"},
        {"abc", "abcd", "The passwords do not match. Password length: 3/4"},
        {"abc", "ABC", "The passwords do not match. Password length: 3"},
        {"abc", "", "The passwords do not match. Password length: 3/0"},
        {"", "", ""},
        {"abc ", "abc ", ""},
    };
    for (const auto& test : cases) {
        open(dialog);
        type(test.password);
        press(Qt::Key_Tab);
        type(test.confirmation);
        EXPECT_EQ(message(), test.message);
        password.setFocus();
        press(Qt::Key_Return);
        const bool closes = *test.message == '\0';
        EXPECT_EQ(dialog.isVisible(), !closes) << test.confirmation;
        EXPECT_EQ(confirmation.hasFocus(), !closes);
        EXPECT_EQ(dialog.password().view(), closes ? test.password : "");
        dialog.reject();
    }
}

TEST_F(PasswordDialog, RefusesCharactersThatNobodySees)
{
    const std::pair<const char*, const char*> cases[] = {
        {"abc\n", "The password contains a line break."},
        {"abc\r\n", "The password contains a line break."},
        {"a\xe2\x80\xa8z", "The password contains a line break."},
        {"a\tz", "The password contains a tab."},
        {"a\x01z", "The password contains a control character."},
    };
    for (const bool encrypting : {true, false})
        for (const auto& [text, problem] : cases) {
            dialog.setEncryptMode(encrypting);
            open(dialog);
            QApplication::clipboard()->setText(QString::fromUtf8(text));
            password.paste();
            EXPECT_EQ(message(), problem);
            confirmation.paste();
            press(Qt::Key_Return);
            EXPECT_EQ(message(), problem);
            EXPECT_TRUE(dialog.isVisible());
            EXPECT_TRUE(dialog.password().empty());
            dialog.reject();
        }
}

TEST_F(PasswordDialog, PassesByKeyboardAloneInTheOrderOfTheForm)
{
    dialog.setSeal(true);
    dialog.setUseSalt(true);
    open(dialog);
    EXPECT_EQ(dialog.windowTitle(), "Password to encrypt");
    EXPECT_EQ(child<QTextEdit>(dialog, "textEditInfo").toPlainText(),
              "Remember the name of the encryption algorithm and password. \n"
              "These data will be needed to decrypt the file. \nSelected cryptographic algorithm: AES-256.");
    type("p\xc3\xa4ss");
    press(Qt::Key_Tab);
    type("p\xc3\xa4ss");
    press(Qt::Key_Tab);
    press(Qt::Key_Space); // show password
    press(Qt::Key_Tab);   // generate
    press(Qt::Key_Tab);
    EXPECT_FALSE(child(dialog, "checkBoxUseSalt").isEnabled()) << "a seal has one";
    press(Qt::Key_Space); // no seal
    press(Qt::Key_Tab);
    press(Qt::Key_Space); // use salt
    press(Qt::Key_Tab);
    press(Qt::Key_Space); // rewrite
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &child(dialog, "labelAdvancedMode"));
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &child(dialog, "buttonOk"));
    press(Qt::Key_Return);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_FALSE(dialog.switchToAdvanced());
    EXPECT_EQ(dialog.password().view(), "p\xc3\xa4ss") << "in UTF-8";
    EXPECT_FALSE(dialog.seal());
    EXPECT_FALSE(dialog.useSalt());
    EXPECT_TRUE(dialog.rewriteOutputFile());
}

TEST_F(PasswordDialog, DecryptingAsksOnce)
{
    dialog.setEncryptMode(false);
    open(dialog);
    EXPECT_EQ(dialog.windowTitle(), "Password to decrypt");
    EXPECT_EQ(child<QTextEdit>(dialog, "textEditInfo").toPlainText(),
              "Enter the password to decrypt the file. \nSelected cryptographic algorithm: AES-256.");
    EXPECT_EQ(dialog.accessibleDescription(), child<QTextEdit>(dialog, "textEditInfo").toPlainText());
    for (const char* hidden : {"labelConfirmPassword", "lineEditConfirmPassword", "checkBoxSeal",
                               "checkBoxUseSalt", "buttonGenerate", "strengthBar", "labelStrength"})
        EXPECT_FALSE(child(dialog, hidden).isVisible()) << hidden;
    EXPECT_TRUE(child(dialog, "checkBoxRewrite").isVisible());
    type("abc");
    EXPECT_EQ(message(), QString());
    EXPECT_EQ(child<QLabel>(dialog, "labelStrength").text(), QString());
    press(Qt::Key_Return);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(dialog.password().view(), "abc");
}

TEST_F(PasswordDialog, FollowsTheSettings)
{
    dialog.setUseConfirmPassword(false);
    dialog.setShowPassword(true);
    dialog.setShowAdvancedOptions(false);
    dialog.setSeal(true);
    dialog.setRewriteOutputFile(true);
    dialog.setSubject("file", 2);
    open(dialog);
    EXPECT_FALSE(confirmation.isVisible());
    EXPECT_FALSE(child(dialog, "labelAdvancedMode").isVisible());
    EXPECT_EQ(child<QLabel>(dialog, "labelSubject").text(), "file and 2 more");
    type("abc");
    press(Qt::Key_Return);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_TRUE(dialog.seal() && dialog.rewriteOutputFile());
}

TEST_F(PasswordDialog, ShowsBothPasswordsWithTheBoxAndTheEye)
{
    auto& box = child<QAbstractButton>(dialog, "checkBoxShowPassword");
    QAction& eye = *password.actions().constFirst();
    const auto picture = [&eye] { return eye.icon().pixmap(24).toImage(); };
    const auto looks = [&](bool shown, const QImage& icon) {
        for (const QLineEdit* field : {&password, &confirmation}) {
            EXPECT_EQ(field->echoMode(), shown ? QLineEdit::Normal : QLineEdit::Password);
            EXPECT_TRUE(field->inputMethodHints().testFlag(Qt::ImhSensitiveData));
            EXPECT_TRUE(field->inputMethodHints().testFlag(Qt::ImhNoPredictiveText));
        }
        EXPECT_EQ(box.isChecked(), shown);
        EXPECT_EQ(eye.isChecked(), shown);
        EXPECT_EQ(eye.text(), shown ? "Hide password" : "Show password");
        EXPECT_EQ(picture(), icon);
    };
    open(dialog);
    const QImage hidden = thisapp::eyeIcon(false).pixmap(24).toImage();
    const QImage shown = thisapp::eyeIcon(true).pixmap(24).toImage();
    looks(false, hidden);
    eye.trigger();
    looks(true, shown);
    box.click();
    looks(false, hidden);
    box.click();
    dialog.reject();
    open(dialog);
    looks(false, hidden);
    // Along the line that crosses it there is more to see.
    EXPECT_GT(shown.pixelColor(7, 17).alpha(), hidden.pixelColor(7, 17).alpha());
}

TEST_F(PasswordDialog, KeepsNothingForTheNextTime)
{
    for (const bool another : {false, true}) {
        open(dialog);
        type("abc");
        press(Qt::Key_Tab);
        type("abc");
        if (another)
            child<CLinkLabel>(dialog, "labelAdvancedMode").follow();
        else
            press(Qt::Key_Return);
        EXPECT_EQ(dialog.switchToAdvanced(), another);
        EXPECT_EQ(dialog.password().empty(), another);
        open(dialog);
        press(Qt::Key_Escape);
        EXPECT_TRUE(dialog.password().empty());
        EXPECT_FALSE(dialog.switchToAdvanced());
    }
}

TEST_F(PasswordDialog, HandsOverToTheKeyDialogWithTheOptionsButNoPassword)
{
    dialog.setUseSalt(true);
    open(dialog);
    type("abc"); // not confirmed: no matter here
    press(Qt::Key_E, Qt::AltModifier);
    press(Qt::Key_R, Qt::AltModifier);
    child(dialog, "labelAdvancedMode").setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_TRUE(dialog.switchToAdvanced());
    EXPECT_TRUE(dialog.seal() && dialog.rewriteOutputFile());
    EXPECT_TRUE(dialog.useSalt()) << "disabled, but not forgotten";
    EXPECT_TRUE(dialog.password().empty());
}

TEST_F(PasswordDialog, OverwritesWhatWasTypedWhenItIsCancelled)
{
    dialog.setShowPassword(true); // a masked field couldn't undo anyway
    open(dialog);
    press(Qt::Key_O, Qt::AltModifier);
    EXPECT_TRUE(confirmation.hasFocus());
    type("other");
    const QString confirmed = confirmation.text();
    press(Qt::Key_P, Qt::AltModifier);
    type("secret");
    const QString storage = password.text();      // shares the field's characters
    const QString shown = password.displayText(); // and the copy that it shows
    press(Qt::Key_Escape);
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_TRUE(dialog.password().empty());
    EXPECT_EQ(storage, QString(6, QChar(0)));
    EXPECT_EQ(shown, QString(6, QChar(0)));
    EXPECT_EQ(confirmed, QString(5, QChar(0)));
    EXPECT_EQ(password.text(), QString());
    EXPECT_FALSE(password.isUndoAvailable());

    auto ended = std::make_unique<CSetPasswordDialog>();
    open(*ended);
    type("secret");
    const QString left = child<QLineEdit>(*ended, "lineEditPassword").text();
    ended.reset();
    EXPECT_EQ(left, QString(6, QChar(0)));
}

TEST_F(PasswordDialog, HasRoomForWhatIsTyped)
{
    open(dialog);
    for (QLineEdit* field : {&password, &confirmation}) {
        const QChar* storage = field->text().constData();
        QTest::keyClicks(field, QString(100, 'x'));
        EXPECT_EQ(field->text().constData(), storage) << "typing has left a copy behind";
    }
}

TEST_F(PasswordDialog, KeepsWhatWasTypedWhileMinimised)
{
    open(dialog);
    type("secret");
    sendFromOutside<QHideEvent>(dialog);
    sendFromOutside<QShowEvent>(dialog);
    EXPECT_EQ(password.text(), "secret");
}

TEST_F(PasswordDialog, NamesTheStrengthAndWarnsOfCapsLock)
{
    open(dialog);
    auto& strength = child<QLabel>(dialog, "labelStrength");
    auto& capsLock = child<QLabel>(dialog, "labelCapsLock");
    type("password");
    EXPECT_EQ(strength.text(), "Password strength: very weak, guessed at once.");
    EXPECT_EQ(capsLock.text(), QString());
    for (QLineEdit* field : {&confirmation, &password})
        for (const char* key : {"X", "x"}) {
            QKeyEvent withoutShift(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, key);
            QApplication::sendEvent(field, &withoutShift);
            EXPECT_EQ(capsLock.text(), *key == 'X' ? "Caps Lock is on." : "");
        }
    password.selectAll();
    press(Qt::Key_Delete);
    EXPECT_EQ(strength.text(), QString());
}

TEST_F(PasswordDialog, TakesAGeneratedPasswordAndAsksBeforeItReplacesATypedOne)
{
    open(dialog);
    const auto generate = [this](Qt::Key answer) {
        QString made;
        std::shared_ptr<bool> waiting;
        whenModal([&](QWidget& generator) {
            press(Qt::Key_G, Qt::AltModifier);
            const QString shown = child<QLineEdit>(generator, "lineEditPassword").text();
            made = QString(shown.constData(), shown.size()); // the generator wipes what it has
            waiting = whenModal([answer](QWidget&) {
                press(answer, answer == Qt::Key_Y ? Qt::AltModifier : Qt::NoModifier);
            });
            press(Qt::Key_Return);
        });
        press(Qt::Key_G, Qt::AltModifier);
        QApplication::setActiveWindow(&dialog);
        return std::pair(made, !std::exchange(*waiting, false));
    };
    const auto [first, askedFirst] = generate(Qt::Key_Y);
    EXPECT_FALSE(askedFirst) << "nothing was typed";
    EXPECT_EQ(first.count(' '), 5);
    EXPECT_EQ(password.text(), first);
    EXPECT_EQ(confirmation.text(), first);
    EXPECT_TRUE(generate(Qt::Key_Return).second);
    EXPECT_EQ(password.text(), first) << "No is the default";
    password.clear(); // what was confirmed is typed, too
    const auto [second, askedThen] = generate(Qt::Key_Y);
    EXPECT_TRUE(askedThen);
    EXPECT_EQ(password.text(), second);
    EXPECT_EQ(confirmation.text(), second);
    EXPECT_EQ(QApplication::focusWidget(), &child(dialog, "buttonOk"));
    press(Qt::Key_Return);
    EXPECT_EQ(dialog.password().view(), second.toStdString());
}

} // namespace
