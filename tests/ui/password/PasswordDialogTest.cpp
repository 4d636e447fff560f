#include "ui/Form.h"
#include "ui/password/CSetPasswordDialog.h"
#include "ui/style/EyeIcon.h"

namespace {

using Dialog = CSetPasswordDialog;

/// The dialog, set up for an encryption with confirmation, with its widgets at hand.
struct PasswordForm : Form<Dialog>
{
    PasswordForm()
    {
        dialog.setAlgorithmName("AES-256");
        dialog.setSubject("file", 2);
        settings = {{"encrypt", &Dialog::setEncryptMode},      {"confirm", &Dialog::setUseConfirmPassword},
                    {"show", &Dialog::setShowPassword},        {"seal", &Dialog::setSeal},
                    {"link", &Dialog::setShowAdvancedOptions}, {"salt", &Dialog::setUseSalt},
                    {"rewrite", &Dialog::setRewriteOutputFile}};
        verbs["paste"] = [this](const QStringList& row) {
            QApplication::clipboard()->setText(row[1]);
            password.paste();
            confirmation.paste();
        };
        verbs["generate"] = [this](const QStringList& row) { generate(row.value(1)); };
        outcomes["generated"] = [this] {
            return namesOf(
                {{"password", password.text() == made}, {"confirmation", confirmation.text() == made}});
        };
        outcomes["password"] = [this] { return QString(dialog.password().c_str()); };
        outcomes["options"] = [this] {
            return namesOf({{"seal", dialog.seal()},
                            {"salt", dialog.useSalt()},
                            {"rewrite", dialog.rewriteOutputFile()},
                            {"advanced", dialog.switchToAdvanced()}});
        };
    }

    /// Takes the second password from the generator; with the keys that answer the question which comes up
    /// then.
    void generate(const QString& answer)
    {
        std::shared_ptr<bool> waiting;
        whenModal([&](QWidget& generator) {
            ::press("Alt+G");
            const QString shown = ::text(generator, "lineEditPassword");
            made = QString(shown.constData(), shown.size()); // the generator wipes what it has
            waiting = answerModal(answer);
            ::press("Return");
        });
        press("Alt+G");
        QApplication::setActiveWindow(&dialog);
        EXPECT_EQ(std::exchange(*waiting, false), answer.isEmpty());
    }

    QString made;
    QLineEdit& password = child<QLineEdit>(dialog, "lineEditPassword");
    QLineEdit& confirmation = child<QLineEdit>(dialog, "lineEditConfirmPassword");
};

struct PasswordDialog : testing::Test, PasswordForm
{
};

TEST_F(PasswordDialog, TakesAPasswordAndOptionsAsItSays)
{
    walk<PasswordForm>("ui/password_dialog.txt");
}

TEST_F(PasswordDialog, ShowsBothPasswordsWithTheBoxAndTheEye)
{
    auto& box = child<QAbstractButton>(dialog, "checkBoxShowPassword");
    QAction& eye = *password.actions().constFirst();
    const QImage icons[] = {thisapp::eyeIcon(false).pixmap(24).toImage(),
                            thisapp::eyeIcon(true).pixmap(24).toImage()};
    const auto open = [this] { reopen(); };
    const auto clickBox = [&box] { box.click(); };
    bool shown = false;
    for (const std::function<void()>& step :
         {std::function<void()>(open), {[&eye] { eye.trigger(); }}, {clickBox}, {clickBox}, {open}}) {
        step();
        for (const QLineEdit* field : {&password, &confirmation}) {
            EXPECT_EQ(field->echoMode(), shown ? QLineEdit::Normal : QLineEdit::Password);
            EXPECT_TRUE(field->inputMethodHints().testFlag(Qt::ImhSensitiveData));
            EXPECT_TRUE(field->inputMethodHints().testFlag(Qt::ImhNoPredictiveText));
        }
        EXPECT_TRUE(box.isChecked() == shown && eye.isChecked() == shown);
        EXPECT_EQ(eye.text(), shown ? "Hide password" : "Show password");
        EXPECT_EQ(eye.icon().pixmap(24).toImage(), icons[shown ? 1 : 0]);
        shown = !shown;
    }
    // Along the line that crosses it there is more to see.
    EXPECT_GT(icons[1].pixelColor(7, 17).alpha(), icons[0].pixelColor(7, 17).alpha());
}

TEST_F(PasswordDialog, LeavesNoCopyWhileItIsTypedNorAtTheEnd)
{
    const QString zeros(6, QChar(0));
    open(dialog);
    for (QLineEdit* field : {&password, &confirmation}) {
        const QChar* storage = field->text().constData();
        QTest::keyClicks(field, QString(100, 'x'));
        EXPECT_EQ(field->text().constData(), storage) << "it outgrew its storage";
    }
    sendFromOutside<QHideEvent>(dialog);
    EXPECT_EQ(password.text(), QString(100, 'x')) << "of a minimised window";
    dialog.setShowPassword(true); // a masked field couldn't undo anyway
    reopen();
    press("Alt+O");
    EXPECT_TRUE(confirmation.hasFocus());
    type("others");
    press("Alt+P");
    type("secret");
    const QString confirmed = confirmation.text();
    const QString storage = password.text();      // shares the field's characters
    const QString shown = password.displayText(); // and the copy that it shows
    press("Esc");
    EXPECT_TRUE(storage == zeros && shown == zeros && confirmed == zeros);
    EXPECT_EQ(password.text(), "");
    EXPECT_FALSE(password.isUndoAvailable());

    auto ended = std::make_unique<Dialog>();
    open(*ended);
    type("secret");
    const QString left = child<QLineEdit>(*ended, "lineEditPassword").text();
    ended.reset();
    EXPECT_EQ(left, zeros);
}

} // namespace
