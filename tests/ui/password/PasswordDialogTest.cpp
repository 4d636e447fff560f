#include "ui/Widgets.h"
#include "ui/password/CSetPasswordDialog.h"
#include "ui/style/CLinkLabel.h"
#include "ui/style/EyeIcon.h"

namespace {

/// The dialog, set up for an encryption with confirmation, with its widgets at hand.
struct PasswordDialog : DialogTest<CSetPasswordDialog>
{
    PasswordDialog() { dialog.setAlgorithmName("AES-256"); }

    QLineEdit& password = child<QLineEdit>(dialog, "lineEditPassword");
    QLineEdit& confirmation = child<QLineEdit>(dialog, "lineEditConfirmPassword");
};

TEST_F(PasswordDialog, ShowsAMismatchWhileTypingAndStaysOpen)
{
    const std::tuple<const char*, const char*, QString> rows[] = {
        {"abc", "\tabd", "The passwords do not match. Password length: 3"},
        {"abc", "\tabcd", "The passwords do not match. Password length: 3/4"},
        {"abc", "\tABC", "The passwords do not match. Password length: 3"},
        {"abc", "\t", "The passwords do not match. Password length: 3/0"},
        {"", "\t", ""},
        {"abc ", "\tabc ", ""},
    };
    for (const auto& [typed, confirmed, complaint] : rows) {
        open(dialog);
        type(typed);
        type(confirmed);
        EXPECT_EQ(text("lineEditMsg"), complaint);
        password.setFocus();
        press("Return");
        EXPECT_EQ(dialog.isVisible(), !complaint.isEmpty()) << confirmed;
        EXPECT_EQ(confirmation.hasFocus(), dialog.isVisible());
        EXPECT_EQ(dialog.password().view(), dialog.isVisible() ? "" : typed);
        dialog.reject();
    }
}

TEST_F(PasswordDialog, RefusesCharactersThatNobodySees)
{
    for (const bool encrypting : {true, false})
        for (const auto& [pasted, what] : {std::pair("abc\n", "line break"),
                                           {"abc\r\n", "line break"},
                                           {"a\xe2\x80\xa8z", "line break"},
                                           {"a\tz", "tab"},
                                           {"a\x01z", "control character"}}) {
            const QString complaint = QString("The password contains a %1.").arg(what);
            dialog.setEncryptMode(encrypting);
            open(dialog);
            QApplication::clipboard()->setText(QString::fromUtf8(pasted));
            password.paste();
            EXPECT_EQ(text("lineEditMsg"), complaint);
            confirmation.paste();
            press("Return");
            EXPECT_EQ(text("lineEditMsg"), complaint);
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
    EXPECT_EQ(text("textEditInfo"),
              "Remember the name of the encryption algorithm and password. \n"
              "These data will be needed to decrypt the file. \nSelected cryptographic algorithm: AES-256.");
    type("p\xc3\xa4ss\tp\xc3\xa4ss");
    press("Tab Space Tab Tab"); // show password, generate
    EXPECT_FALSE(isEnabled("checkBoxUseSalt")) << "a seal has one";
    press("Space Tab Space Tab Space Tab"); // no seal, no salt, rewrite
    EXPECT_EQ(focusName(), "labelAdvancedMode");
    press("Tab");
    EXPECT_EQ(focusName(), "buttonOk");
    press("Return");
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_FALSE(dialog.switchToAdvanced());
    EXPECT_EQ(dialog.password().view(), "p\xc3\xa4ss") << "in UTF-8";
    EXPECT_FALSE(dialog.seal() || dialog.useSalt());
    EXPECT_TRUE(dialog.rewriteOutputFile());
}

TEST_F(PasswordDialog, DecryptingAsksOnce)
{
    dialog.setEncryptMode(false);
    open(dialog);
    EXPECT_EQ(dialog.windowTitle(), "Password to decrypt");
    EXPECT_EQ(text("textEditInfo"),
              "Enter the password to decrypt the file. \nSelected cryptographic algorithm: AES-256.");
    EXPECT_EQ(dialog.accessibleDescription(), text("textEditInfo"));
    for (const char* hidden : {"labelConfirmPassword", "lineEditConfirmPassword", "checkBoxSeal",
                               "checkBoxUseSalt", "buttonGenerate", "strengthBar", "labelStrength"})
        EXPECT_FALSE(isVisible(hidden)) << hidden;
    EXPECT_TRUE(isVisible("checkBoxRewrite"));
    type("abc");
    EXPECT_EQ(text("lineEditMsg") + text("labelStrength"), "");
    press("Return");
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
    EXPECT_FALSE(confirmation.isVisible() || isVisible("labelAdvancedMode"));
    EXPECT_EQ(text("labelSubject"), "file and 2 more");
    type("abc\n");
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_TRUE(dialog.seal() && dialog.rewriteOutputFile());
}

TEST_F(PasswordDialog, ShowsBothPasswordsWithTheBoxAndTheEye)
{
    auto& box = child<QAbstractButton>(dialog, "checkBoxShowPassword");
    QAction& eye = *password.actions().constFirst();
    const QImage icons[] = {thisapp::eyeIcon(false).pixmap(24).toImage(),
                            thisapp::eyeIcon(true).pixmap(24).toImage()};
    const auto expectShown = [&](bool shown) {
        for (const QLineEdit* field : {&password, &confirmation}) {
            EXPECT_EQ(field->echoMode(), shown ? QLineEdit::Normal : QLineEdit::Password);
            EXPECT_TRUE(field->inputMethodHints().testFlag(Qt::ImhSensitiveData));
            EXPECT_TRUE(field->inputMethodHints().testFlag(Qt::ImhNoPredictiveText));
        }
        EXPECT_TRUE(box.isChecked() == shown && eye.isChecked() == shown);
        EXPECT_EQ(eye.text(), shown ? "Hide password" : "Show password");
        EXPECT_EQ(eye.icon().pixmap(24).toImage(), icons[shown ? 1 : 0]);
    };
    open(dialog);
    expectShown(false);
    eye.trigger();
    expectShown(true);
    box.click();
    expectShown(false);
    box.click();
    dialog.reject();
    open(dialog);
    expectShown(false);
    // Along the line that crosses it there is more to see.
    EXPECT_GT(icons[1].pixelColor(7, 17).alpha(), icons[0].pixelColor(7, 17).alpha());
}

TEST_F(PasswordDialog, HandsOverTheOptionsButNoPasswordAndKeepsNothingForTheNextTime)
{
    dialog.setUseSalt(true);
    for (const bool confirmed : {true, false}) {
        open(dialog);
        type(confirmed ? "abc\tabc\n" : "abc");
        if (!confirmed) { // no matter here
            press("Alt+E Alt+R");
            child<CLinkLabel>(dialog, "labelAdvancedMode").setFocus();
            press("Return");
        }
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
        EXPECT_EQ(dialog.switchToAdvanced(), !confirmed);
        EXPECT_EQ(dialog.password().empty(), !confirmed);
        EXPECT_EQ(dialog.seal() && dialog.rewriteOutputFile(), !confirmed);
        EXPECT_TRUE(dialog.useSalt()) << "disabled, but not forgotten";
        open(dialog);
        press("Esc");
        EXPECT_TRUE(dialog.password().empty());
        EXPECT_FALSE(dialog.switchToAdvanced());
    }
}

TEST_F(PasswordDialog, OverwritesWhatWasTypedWhenItIsCancelled)
{
    const QString zeros(6, QChar(0));
    dialog.setShowPassword(true); // a masked field couldn't undo anyway
    open(dialog);
    press("Alt+O");
    EXPECT_TRUE(confirmation.hasFocus());
    type("others");
    const QString confirmed = confirmation.text();
    press("Alt+P");
    type("secret");
    const QString storage = password.text();      // shares the field's characters
    const QString shown = password.displayText(); // and the copy that it shows
    press("Esc");
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_TRUE(dialog.password().empty());
    EXPECT_TRUE(storage == zeros && shown == zeros && confirmed == zeros);
    EXPECT_EQ(password.text(), "");
    EXPECT_FALSE(password.isUndoAvailable());

    auto ended = std::make_unique<CSetPasswordDialog>();
    open(*ended);
    type("secret");
    const QString left = child<QLineEdit>(*ended, "lineEditPassword").text();
    ended.reset();
    EXPECT_EQ(left, zeros);
}

TEST_F(PasswordDialog, HasRoomForWhatIsTypedAndKeepsItWhileMinimised)
{
    open(dialog);
    for (QLineEdit* field : {&password, &confirmation}) {
        const QChar* storage = field->text().constData();
        QTest::keyClicks(field, QString(100, 'x'));
        EXPECT_EQ(field->text().constData(), storage) << "typing has left a copy behind";
    }
    sendFromOutside<QHideEvent>(dialog);
    sendFromOutside<QShowEvent>(dialog);
    EXPECT_EQ(password.text(), QString(100, 'x'));
}

TEST_F(PasswordDialog, NamesTheStrengthAndWarnsOfCapsLock)
{
    open(dialog);
    type("password");
    EXPECT_EQ(text("labelStrength"), "Password strength: very weak, guessed at once.");
    EXPECT_EQ(text("labelCapsLock"), "");
    for (QLineEdit* field : {&confirmation, &password})
        for (const auto& [key, warning] : {std::pair("X", "Caps Lock is on."), {"x", ""}}) {
            field->setFocus();
            type(key);
            EXPECT_EQ(text("labelCapsLock"), warning);
        }
    password.selectAll();
    press("Del");
    EXPECT_EQ(text("labelStrength"), "");
}

TEST_F(PasswordDialog, TakesAGeneratedPasswordAndAsksBeforeItReplacesATypedOne)
{
    open(dialog);
    const auto generate = [this](const char* answer) {
        QString made;
        std::shared_ptr<bool> waiting;
        whenModal([&](QWidget& generator) {
            press("Alt+G");
            const QString shown = ::text(generator, "lineEditPassword");
            made = QString(shown.constData(), shown.size()); // the generator wipes what it has
            waiting = answerModal(answer);
            press("Return");
        });
        press("Alt+G");
        QApplication::setActiveWindow(&dialog);
        return std::pair(made, !std::exchange(*waiting, false));
    };
    const auto [first, askedFirst] = generate("Alt+Y");
    EXPECT_FALSE(askedFirst) << "nothing was typed";
    EXPECT_EQ(first.count(' '), 5);
    EXPECT_TRUE(password.text() == first && confirmation.text() == first);
    EXPECT_TRUE(generate("Return").second);
    EXPECT_EQ(password.text(), first) << "No is the default";
    password.clear(); // what was confirmed is typed, too
    const auto [second, askedThen] = generate("Alt+Y");
    EXPECT_TRUE(askedThen);
    EXPECT_TRUE(password.text() == second && confirmation.text() == second);
    EXPECT_EQ(focusName(), "buttonOk");
    press("Return");
    EXPECT_EQ(dialog.password().view(), second.toStdString());
}

} // namespace
