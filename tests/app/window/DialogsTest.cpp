#include "window/WindowHarness.h"

#include "ui/algorithms/CAlgInfoDialog.h"
#include "ui/algorithms/CSetAlgDialog.h"
#include "ui/options/COptionsDialog.h"
#include "ui/password/CSetKeyAndIvDialog.h"

namespace test {

/// What a dialog says of itself: title, file, algorithm, and its switches as "sar" for seal, salt, rewriting.
static std::string summary(QDialog& dialog)
{
    QString switches;
    for (const auto& [name, letter] : {std::pair("checkBoxSeal", 's'), std::pair("checkBoxUseSalt", 'a'),
                                       std::pair("checkBoxRewrite", 'r')})
        if (const auto& box = child<QCheckBox>(dialog, name); box.isVisible() && box.isChecked())
            switches += letter;
    const QString info = child<QTextEdit>(dialog, "textEditInfo").toPlainText();
    return QStringList{dialog.windowTitle(), child<QLabel>(dialog, "labelSubject").text(),
                       info.mid(info.lastIndexOf(": ") + 2), switches}
        .join('|')
        .toStdString();
}

static void check(QDialog& dialog, const char* box, bool on)
{
    child<QCheckBox>(dialog, box).setChecked(on);
}

/// The dialogs that the window opens, and what becomes of the answers.
class DialogsTest : public WindowTest
{
protected:
    static void type(QDialog& dialog, const QString& iv, const QString& key)
    {
        child<QPlainTextEdit>(dialog, "plainTextEditIv").setPlainText(iv);
        child<QPlainTextEdit>(dialog, "plainTextEditKey").setPlainText(key);
    }
    /// From the password dialog to the other one.
    void toKeyDialog(QDialog& from, const std::function<void(CSetKeyAndIvDialog&)>& act)
    {
        onDialog<CSetKeyAndIvDialog>(act);
        child<CLinkLabel>(from, "labelAdvancedMode").follow();
    }
    void onKeyDialog(const std::function<void(CSetKeyAndIvDialog&)>& act)
    {
        onDialog<CSetPasswordDialog>([this, act](CSetPasswordDialog& dialog) { toKeyDialog(dialog, act); });
    }
    void runWithKey(Qt::Key key, const char* in, const char* out, const QString& hex, bool seal = false)
    {
        onKeyDialog([=](CSetKeyAndIvDialog& dialog) {
            type(dialog, QString("01").repeated(16), hex);
            check(dialog, "checkBoxSeal", seal);
            child<QPushButton>(dialog, "buttonOk").click();
        });
        fill(in, out);
        press(key);
        waitForEnd();
    }
};

TEST_F(DialogsTest, ShowWhatTheSettingsSay)
{
    writeInput("in");
    struct
    {
        Qt::Key key;
        bool on;
        Lines expected;
    } const cases[] = {
        {Qt::Key_F5, false, {"Password to encrypt|in|AES-256.|"}},
        {Qt::Key_F5, true, {"Password to encrypt|in|AES-256.|sar", "Key and IV to encrypt|in|AES-256.|sar"}},
        {Qt::Key_F6, false, {"Password to decrypt|in|AES-256.|"}},
        {Qt::Key_F6, true, {"Password to decrypt|in|AES-256.|r", "Key and IV to decrypt|in|AES-256.|r"}},
    };
    for (const auto& c : cases) {
        std::map<QString, QVariant> settings;
        for (const char* key : {"SealFiles", "UseSalt", "RewriteOutputFile", "ShowAdvancedPasswordOptions",
                                "ShowPassword", "UseConfirmPassword"})
            settings[key] = c.on;
        set(settings);
        Lines seen;
        onDialog<CSetPasswordDialog>([&](CSetPasswordDialog& dialog) {
            seen.push_back(summary(dialog));
            EXPECT_EQ(child<CLinkLabel>(dialog, "labelAdvancedMode").isVisible(), c.on);
            EXPECT_EQ(child<QWidget>(dialog, "frameConfirmPassword").isVisible(),
                      c.on && c.key == Qt::Key_F5);
            EXPECT_EQ(child<QLineEdit>(dialog, "lineEditPassword").echoMode(),
                      c.on ? QLineEdit::Normal : QLineEdit::Password);
            QTest::keyClick(&dialog, Qt::Key_F8, Qt::ControlModifier); // a command of the window alone
            if (!c.on)
                return dialog.reject();
            toKeyDialog(dialog, [&](CSetKeyAndIvDialog& other) {
                seen.push_back(summary(other));
                EXPECT_TRUE(child<QLabel>(other, "labelKey").text().contains("32 bytes"));
                other.reject();
            });
        });
        fill("in", "out");
        press(c.key);
        EXPECT_EQ(seen, c.expected);
        EXPECT_EQ(result(), "Password not defined");
        EXPECT_EQ(input().text(), path("in"));
    }
}

TEST_F(DialogsTest, WorkWithKeyAndIv)
{
    const QString key = QString("a7").repeated(32);
    writeInput("in", 200'000);
    set({{"RewriteOutputFile", true}});
    for (const bool seal : {false, true}) {
        SCOPED_TRACE(seal);
        runWithKey(Qt::Key_F5, "in", "out", key, seal);
        EXPECT_EQ(fs::file_size(folder / "out") > 200'064, seal) << result();
        runWithKey(Qt::Key_F6, "out", "back", key);
        EXPECT_EQ(read("back"), read("in")) << result();
        runWithKey(Qt::Key_F6, "out", "none", QString(key).replace(0, 1, 'b'));
        EXPECT_EQ(text("inputMessage"), "Check the key, the IV and the algorithm.");
    }
    damage("out");
    runWithKey(Qt::Key_F6, "out", "none", key);
    EXPECT_EQ(text("inputMessage"),
              "The key, the IV and the algorithm are right. Try another copy of the file.");
}

/// What was typed and switched in one of the two is there when the user comes back from the other.
TEST_F(DialogsTest, KeepWhatWasSaidOnTheWayThroughBoth)
{
    writeInput("in");
    Lines seen;
    onKeyDialog([&](CSetKeyAndIvDialog& dialog) {
        type(dialog, "0102", "a1a");
        check(dialog, "checkBoxUseSalt", true);
        check(dialog, "checkBoxRewrite", true);
        onDialog<CSetPasswordDialog>([&](CSetPasswordDialog& password) {
            seen.push_back(summary(password));
            check(password, "checkBoxSeal", true);
            check(password, "checkBoxRewrite", false);
            toKeyDialog(password, [&](CSetKeyAndIvDialog& again) {
                seen.push_back(summary(again));
                for (const char* field : {"plainTextEditIv", "plainTextEditKey"})
                    seen.push_back(child<QPlainTextEdit>(again, field).toPlainText().toStdString());
                again.reject();
            });
        });
        child<CLinkLabel>(dialog, "labelNormalMode").follow();
    });
    fill("in", "out");
    press(Qt::Key_F5);
    EXPECT_EQ(seen, Lines({"Password to encrypt|in|AES-256.|ar", "Key and IV to encrypt|in|AES-256.|sa",
                           "0102", "a1a"}));
}

TEST_F(DialogsTest, SwitchTheMenusOfTheDesktop)
{
    std::pair before(options.read().integrateToShellContextMenu, options.read().addToSendMenu);
    for (const bool contextMenu : {false, true, true})
        for (const bool sendTo : {true, false}) {
            shellUpdates.clear();
            onDialog<COptionsDialog>([=, this](COptionsDialog& dialog) {
                EXPECT_EQ(child<QLineEdit>(dialog, "editLogFile").text(), path("quillet.log"));
                check(dialog, "checkContextMenu", contextMenu);
                check(dialog, "checkSendTo", sendTo);
                child<QPushButton>(dialog, "buttonOk").click();
            });
            trigger("options");
            const std::pair wanted(contextMenu, sendTo);
            EXPECT_EQ(shellUpdates, decltype(shellUpdates)(wanted != before ? 1 : 0, wanted));
            before = wanted;
        }
}

TEST_F(DialogsTest, ChooseAnAlgorithmForNowOrForGood)
{
    for (const auto& [name, forGood] : {std::pair("Serpent-256", false), std::pair("AES-128", true)}) {
        onDialog<CSetAlgDialog>([name = name, forGood = forGood](CSetAlgDialog& dialog) {
            auto& list = child<QListWidget>(dialog);
            list.setCurrentItem(list.findItems(name, Qt::MatchExactly).value(0));
            check(dialog, "checkBoxUseAsDefault", forGood);
            dialog.accept();
        });
        trigger("default-algorithm");
        EXPECT_EQ(algorithm(), name);
        EXPECT_EQ(WindowHarness().algorithm(), forGood ? name : "AES-256");
    }
    onDialog<CAlgInfoDialog>([](CAlgInfoDialog& dialog) {
        EXPECT_TRUE(child<QListWidget>(dialog).currentItem()->text().contains("AES-128"));
        dialog.reject();
    });
    trigger("algorithm-info");
}

TEST_F(DialogsTest, ChooseFilesBesideThoseThatAreThere)
{
    writeInput("in");
    makeFolder("sub");
    folder.write("sub/former", "");
    for (const char* given : {"", "sub/out"}) {
        input().setText(path("in"));
        output().setText(*given ? path(given) : QString());
        answerFile("sub/former"); // taken unasked
        toolButton("Choose the output file").click();
        EXPECT_EQ(asked, *given ? "Define output file|sub|save" : "Define output file|.|save");
        EXPECT_EQ(output().text(), path("sub/former"));
    }
}

} // namespace test
