#include "window/WindowHarness.h"

#include "lib/secret/Hex.h"
#include "ui/algorithms/CAlgInfoDialog.h"
#include "ui/algorithms/CSelectAlgFrame.h"
#include "ui/algorithms/CSetAlgDialog.h"
#include "ui/options/COptionsDialog.h"
#include "ui/password/CSetKeyAndIvDialog.h"
#include "ui/style/CLinkLabel.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTextEdit>

#include <filesystem>

using namespace thisapp;
namespace fs = std::filesystem;

namespace {

/// What a dialog says of itself: title, file, algorithm, and its switches as "srw" for seal, salt, rewriting.
std::string summary(QDialog& dialog)
{
    std::string switches;
    for (const auto& [name, letter] : {std::pair("checkBoxSeal", 's'), std::pair("checkBoxUseSalt", 'a'),
                                       std::pair("checkBoxRewrite", 'r')})
        if (const auto* box = dialog.findChild<QCheckBox*>(name); box->isVisible() && box->isChecked())
            switches += letter;
    const QString info = dialog.findChild<QTextEdit*>("textEditInfo")->toPlainText();
    return (dialog.windowTitle() + "|" + dialog.findChild<QLabel*>("labelSubject")->text() + "|" +
            info.mid(info.lastIndexOf(": ") + 2))
               .toStdString() +
           "|" + switches;
}

/// The dialogs that the window opens, and what becomes of the answers.
class DialogsTest : public test::WindowTest
{
protected:
    static void ok(QDialog& dialog)
    {
        QTest::mouseClick(dialog.findChild<QPushButton*>("buttonOk"), Qt::LeftButton);
    }
    static void check(QDialog& dialog, const char* box, bool on)
    {
        dialog.findChild<QCheckBox*>(box)->setChecked(on);
    }
    static void type(QDialog& dialog, const char* field, const QString& hex)
    {
        dialog.findChild<QPlainTextEdit*>(field)->setPlainText(hex);
    }
    static std::string typed(QDialog& dialog)
    {
        return (dialog.findChild<QPlainTextEdit*>("plainTextEditIv")->toPlainText() + '/' +
                dialog.findChild<QPlainTextEdit*>("plainTextEditKey")->toPlainText())
            .toStdString();
    }
    /// From the password dialog to the other one, with the switches turned.
    void onKeyDialog(const std::function<void(CSetKeyAndIvDialog&)>& act)
    {
        w.onDialog<CSetPasswordDialog>([this, act](CSetPasswordDialog& dialog) {
            w.onDialog<CSetKeyAndIvDialog>(act);
            dialog.findChild<CLinkLabel*>("labelAdvancedMode")->follow();
        });
    }
    void runWithKey(Qt::Key key, const char* input, const char* output, const QString& hex, bool seal = false)
    {
        onKeyDialog([=](CSetKeyAndIvDialog& dialog) {
            type(dialog, "plainTextEditIv", QString("01").repeated(16));
            type(dialog, "plainTextEditKey", hex);
            check(dialog, "checkBoxSeal", seal);
            ok(dialog);
        });
        press(key, w.path(input), w.path(output));
        ASSERT_TRUE(w.waitForEnd());
    }
    void trigger(const char* action) { w.window->findChild<QAction*>(action)->trigger(); }
};

TEST_F(DialogsTest, ShowWhatTheSettingsSay)
{
    w.writeInput("in", 10);
    struct
    {
        Qt::Key key;
        bool on;
        const char *password, *keyAndIv;
    } const cases[] = {
        {Qt::Key_F5, false, "Password to encrypt|in|AES-256.|", nullptr},
        {Qt::Key_F5, true, "Password to encrypt|in|AES-256.|sar", "Key and IV to encrypt|in|AES-256.|sar"},
        {Qt::Key_F6, false, "Password to decrypt|in|AES-256.|", nullptr},
        {Qt::Key_F6, true, "Password to decrypt|in|AES-256.|r", "Key and IV to decrypt|in|AES-256.|r"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.password);
        set({{"SealFiles", c.on},
             {"UseSalt", c.on},
             {"RewriteOutputFile", c.on},
             {"ShowAdvancedPasswordOptions", c.on},
             {"ShowPassword", c.on},
             {"UseConfirmPassword", c.on}});
        int seen = 0;
        w.onDialog<CSetPasswordDialog>([&](CSetPasswordDialog& dialog) {
            ++seen;
            EXPECT_EQ(summary(dialog), c.password);
            auto* link = dialog.findChild<CLinkLabel*>("labelAdvancedMode");
            EXPECT_EQ(link->isVisible(), c.on);
            EXPECT_EQ(dialog.findChild<QWidget*>("frameConfirmPassword")->isVisible(),
                      c.on && c.key == Qt::Key_F5);
            EXPECT_EQ(dialog.findChild<QLineEdit*>("lineEditPassword")->echoMode(),
                      c.on ? QLineEdit::Normal : QLineEdit::Password);
            QTest::keyClick(&dialog, Qt::Key_F8, Qt::ControlModifier); // a command of the window alone
            if (!c.on)
                return dialog.reject();
            w.onDialog<CSetKeyAndIvDialog>([&](CSetKeyAndIvDialog& other) {
                ++seen;
                EXPECT_EQ(summary(other), c.keyAndIv);
                EXPECT_TRUE(other.findChild<QLabel*>("labelKey")->text().contains("32 bytes"));
                other.reject();
            });
            link->follow();
        });
        press(c.key, w.path("in"), w.path("out"));
        EXPECT_EQ(seen, c.on ? 2 : 1);
        EXPECT_EQ(w.result(), "Password not defined");
        EXPECT_EQ(w.input().text(), w.path("in"));
    }
}

TEST_F(DialogsTest, WorkWithKeyAndIv)
{
    const QString key = QString("a7").repeated(32);
    w.writeInput("in", 200'000);
    for (const bool seal : {false, true}) {
        SCOPED_TRACE(seal);
        set({{"RewriteOutputFile", true}});
        runWithKey(Qt::Key_F5, "in", "out", key, seal);
        EXPECT_EQ(fs::file_size(folder() / "out") > 200'064, seal) << w.result();
        runWithKey(Qt::Key_F6, "out", "back", key);
        EXPECT_EQ(test::readFile(folder() / "back"), test::readFile(folder() / "in")) << w.result();
        runWithKey(Qt::Key_F6, "out", "none", QString(key).replace(0, 1, 'b'));
        EXPECT_EQ(w.text("inputMessage"), "Check the key, the IV and the algorithm.");
    }
    std::string damaged = test::readFile(folder() / "out");
    damaged.back() ^= 1;
    folder().write("out", damaged);
    runWithKey(Qt::Key_F6, "out", "none", key);
    EXPECT_EQ(w.text("inputMessage"),
              "The key, the IV and the algorithm are right. Try another copy of the file.");
}

/// What was typed and switched in one of the two is there when the user comes back from the other.
TEST_F(DialogsTest, KeepWhatWasSaidOnTheWayThroughBoth)
{
    w.writeInput("in", 10);
    std::vector<std::string> seen;
    onKeyDialog([&](CSetKeyAndIvDialog& dialog) {
        type(dialog, "plainTextEditIv", "0102");
        type(dialog, "plainTextEditKey", "a1a");
        check(dialog, "checkBoxUseSalt", true);
        check(dialog, "checkBoxRewrite", true);
        w.onDialog<CSetPasswordDialog>([&](CSetPasswordDialog& password) {
            seen.push_back(summary(password));
            check(password, "checkBoxSeal", true);
            check(password, "checkBoxRewrite", false);
            w.onDialog<CSetKeyAndIvDialog>([&](CSetKeyAndIvDialog& again) {
                seen.push_back(summary(again));
                seen.push_back(typed(again));
                again.reject();
            });
            password.findChild<CLinkLabel*>("labelAdvancedMode")->follow();
        });
        dialog.findChild<CLinkLabel*>("labelNormalMode")->follow();
    });
    press(Qt::Key_F5, w.path("in"), w.path("out"));
    EXPECT_EQ(seen, (std::vector<std::string>{"Password to encrypt|in|AES-256.|ar",
                                              "Key and IV to encrypt|in|AES-256.|sa", "0102/a1a"}));
}

TEST_F(DialogsTest, SwitchTheMenusOfTheDesktop)
{
    for (const bool contextMenu : {false, true, true})
        for (const bool sendTo : {true, false}) {
            w.shellUpdates.clear();
            const SAppOptions before = w.options.read();
            w.onDialog<COptionsDialog>([=, log = w.path("quillet.log")](COptionsDialog& dialog) {
                EXPECT_EQ(dialog.findChild<QLineEdit*>("editLogFile")->text(), log);
                check(dialog, "checkContextMenu", contextMenu);
                check(dialog, "checkSendTo", sendTo);
                ok(dialog);
            });
            trigger("options");
            const std::pair wanted(contextMenu, sendTo);
            const bool changes =
                wanted != std::pair(before.integrateToShellContextMenu, before.addToSendMenu);
            EXPECT_EQ(w.shellUpdates, decltype(w.shellUpdates)(changes ? 1 : 0, wanted));
        }
}

TEST_F(DialogsTest, ChooseAnAlgorithmForNowOrForGood)
{
    const auto selected = [](test::WindowHarness& window) {
        return window.algorithms.displayName(window.form().algFrame().selection()).toStdString();
    };
    for (const auto& [name, forGood] : {std::pair("Serpent-256", false), std::pair("AES-128", true)}) {
        w.onDialog<CSetAlgDialog>([name = name, forGood = forGood](CSetAlgDialog& dialog) {
            auto* list = dialog.findChild<QListWidget*>();
            list->setCurrentItem(list->findItems(name, Qt::MatchExactly).value(0));
            check(dialog, "checkBoxUseAsDefault", forGood);
            dialog.accept();
        });
        trigger("default-algorithm");
        EXPECT_EQ(selected(w), name);
        test::WindowHarness next;
        EXPECT_EQ(selected(next), forGood ? name : "AES-256");
    }
    w.onDialog<CAlgInfoDialog>([](CAlgInfoDialog& dialog) {
        EXPECT_TRUE(dialog.findChild<QListWidget*>()->currentItem()->text().contains("AES-128"));
        dialog.reject();
    });
    trigger("algorithm-info");
}

TEST_F(DialogsTest, ChooseFilesBesideThoseThatAreThere)
{
    w.writeInput("in", 10);
    fs::create_directory(folder() / "sub");
    folder().write("sub/former", "");
    struct
    {
        const char *output, *folder;
    } const cases[] = {{"", ""}, {"sub/out", "sub"}};
    for (const auto& c : cases) {
        w.input().setText(w.path("in"));
        w.output().setText(*c.output ? w.path(c.output) : QString());
        w.onDialog<QFileDialog>([&](QFileDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "Define output file");
            EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
            EXPECT_EQ(dialog.directory().path() + '/', w.path("") + c.folder + (*c.folder ? "/" : ""));
            dialog.findChild<QLineEdit*>("fileNameEdit")->setText(w.path("sub/former")); // taken unasked
            QTest::keyClick(dialog.findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
        });
        w.toolButton("Choose the output file").click();
        EXPECT_EQ(w.output().text(), w.path("sub/former"));
    }
}

} // namespace
