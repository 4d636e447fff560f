#include "window/WindowHarness.h"

#include "app/widgets/CDropHint.h"
#include "support/Environment.h"
#include "ui/algorithms/CSelectAlgFrame.h"
#include "ui/algorithms/CSetAlgDialog.h"
#include "ui/options/COptionsDialog.h"

#include <QAccessible>
#include <QCheckBox>
#include <QFileDialog>
#include <QProgressBar>
#include <QScreen>
#include <gtest/gtest.h>

#include <filesystem>

using namespace thisapp;
using test::WindowHarness;
namespace fs = std::filesystem;

namespace {

using MainWindowTest = test::WindowTest;

TEST_F(MainWindowTest, MapsKeysToCommands)
{
    w.input().setText(w.path("missing"));
    struct
    {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        const char* message;
    } const cases[] = {
        {Qt::Key_F5, Qt::NoModifier, "File to encrypt is not found."},
        {Qt::Key_F5, Qt::ShiftModifier, "File to encrypt is not found."},
        {Qt::Key_F6, Qt::NoModifier, "File to decrypt is not found."},
        {Qt::Key_F5, Qt::ControlModifier, ""},
        {Qt::Key_F6, Qt::ControlModifier, ""},
        {Qt::Key_F5, Qt::AltModifier, ""},
        {Qt::Key_F7, Qt::NoModifier, ""},
    };
    for (const auto& [key, modifiers, message] : cases) {
        w.form().clearMessages();
        QTest::keyClick(&w.input(), key, modifiers);
        EXPECT_EQ(w.text("inputMessage"), message) << key;
    }
    for (const Qt::Key key : {Qt::Key_O, Qt::Key_N}) {
        w.writeInput("chosen.enc", 10);
        w.onDialog<QFileDialog>([this](QFileDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "Add file to encrypt/decrypt");
            dialog.findChild<QLineEdit*>("fileNameEdit")->setText(w.path("chosen.enc"));
            QTest::keyClick(dialog.findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
        });
        QTest::keyClick(&w.output(), key, Qt::ControlModifier);
        EXPECT_EQ(w.input().text(), w.path("chosen.enc"));
        EXPECT_EQ(w.output().text(), w.path("chosen.dec")) << "the proposal";
        EXPECT_TRUE(w.button("buttonDecrypt").isDefault());
        QTest::keyClick(w.window.get(), Qt::Key_F8, Qt::ControlModifier);
        EXPECT_EQ(w.input().text() + w.output().text(), "");
    }
}

TEST_F(MainWindowTest, AsksForAMissingInputAndProposesTheOutput)
{
    w.writeInput("chosen", 10);
    for (const QString& typed : {QString(), w.path("typed")}) {
        w.output().setText(typed);
        w.input().clear();
        w.onDialog<QFileDialog>([this](QFileDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "Select file to encrypt");
            w.answerPassword("");
            dialog.findChild<QLineEdit*>("fileNameEdit")->setText(w.path("chosen"));
            QTest::keyClick(dialog.findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
        });
        QTest::keyClick(w.window.get(), Qt::Key_F5);
        EXPECT_EQ(w.result(), "Password not defined");
        EXPECT_EQ(w.output().text(), typed.isEmpty() ? w.path("chosen.enc") : typed);
    }
    set({{"UseOutputFileAutogenerator", false}});
    w.onDialog<QFileDialog>([this](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Define output file");
        EXPECT_EQ(dialog.directory().path() + '/', w.path(""));
        dialog.reject();
    });
    press(Qt::Key_F5, w.path("chosen"), "");
    EXPECT_EQ(w.text("outputMessage"), "Output file is not defined.");
}

TEST_F(MainWindowTest, NotifiesWhoLooksElsewhere)
{
    w.writeInput("in", 100);
    struct
    {
        Qt::Key key;
        QWidget* active;
        QStringList notifications;
    } const cases[] = {
        {Qt::Key_F5, w.window.get(), {}},
        {Qt::Key_F5, nullptr, {"File was encrypted successfully|out >"}},
        {Qt::Key_F6, nullptr, {"Failed to decrypt file. Corrupted data (error: 5/4003)|in"}},
    };
    for (const auto& c : cases) {
        w.notifications.clear();
        run(c.key, w.path("in"), w.path("out"));
        QApplication::setActiveWindow(c.active);
        ASSERT_TRUE(w.waitForEnd());
        fs::remove(folder() / "out");
        EXPECT_EQ(w.notifications, c.notifications);
    }
}

TEST_F(MainWindowTest, OpensOnlyFoldersThatExist)
{
    test::UrlRecorder opened;
    const auto press = [this](Qt::Key key) { QTest::keyClick(w.window.get(), key, Qt::ControlModifier); };
    press(Qt::Key_F9);
    w.input().setText(w.path("no folder/in"));
    press(Qt::Key_F9);
    EXPECT_TRUE(opened.urls.isEmpty());
    w.input().setText(w.path("in"));
    w.output().setText("/out");
    press(Qt::Key_F9);
    press(Qt::Key_F10);
    fs::create_directory(folder() / "sub");
    w.input().setText(" " + w.path("sub/none"));
    press(Qt::Key_F9);
    const QList<QUrl> expected{QUrl("file://" + w.path("").chopped(1)), QUrl("file:///"),
                               QUrl("file://" + w.path("sub"))};
    EXPECT_EQ(opened.urls, expected);
}

TEST_F(MainWindowTest, DoesWhatTheCommandLineSays)
{
    w.writeInput("in", 100);
    w.window->processCommandLine({w.path("in")});
    EXPECT_EQ(w.input().text(), w.path("in"));
    EXPECT_EQ(w.output().text(), w.path("in.enc"));
    EXPECT_FALSE(w.isRunning());

    w.answerPassword("secret");
    w.window->processCommandLine({"-start", "-ifile", w.path("in"), "/ofile", w.path("out"), "-library",
                                  "none", "-algorithm", "aes-128"});
    EXPECT_EQ(w.algorithms.displayName(w.form().algFrame().selection()), "AES-128");
    ASSERT_TRUE(w.waitForEnd());
    EXPECT_EQ(w.result(), "File was encrypted successfully");
    EXPECT_TRUE(fs::exists(folder() / "out"));

    w.window->processCommandLine({"-algorithm", "AES-256", "-library", "10"});
    w.window->processCommandLine({"-algorithm", "no such", "-ifile", w.path("missing")});
    EXPECT_EQ(w.algorithms.displayName(w.form().algFrame().selection()), "AES-128");
    EXPECT_EQ(w.output().text(), w.path("out")) << "no proposal for what isn't there";
    w.writeInput("a[*]", 10); // the toolkit's mark
    w.window->processCommandLine({w.path("a[*]")});
    EXPECT_EQ(w.window->windowHandle()->title(), "a[*] - Quillet");
    w.input().setText(w.path("in"));
    const auto& hint = *w.window->findChild<CDropHint*>();
    ASSERT_TRUE(
        QTest::qWaitFor([&hint] { return hint.accessibleName() == "in"; }, WindowHarness::JobTimeoutMs));
    EXPECT_EQ(w.output().text(), w.path("a[*].enc")) << "a proposal is for what the user gives";
}

TEST_F(MainWindowTest, FitsTheScreenAndComesBackWhereItWas)
{
    EXPECT_TRUE(w.window->screen()->availableGeometry().contains(w.window->frameGeometry()));
    EXPECT_LE(w.window->minimumSizeHint().height(), 300);
    const auto hintHeight = [this] {
        QCoreApplication::processEvents();
        return w.window->findChild<CDropHint*>()->height();
    };
    const int idle = hintHeight();
    w.writeInput("in", 10);
    w.window->processCommandLine({w.path("in")});
    w.progress().setProgress(50, {MessageKind::Plain, [] { return QString("word ").repeated(60); }});
    for (const Area area : {Area::Input, Area::Output, Area::Result})
        w.form().showMessage(area, {MessageKind::Error, [] { return QString("word ").repeated(60); }});
    EXPECT_EQ(hintHeight(), idle) << "whatever there is to say";
    w.window->setGeometry(70, 60, 420, 380);
    w.window->close();
    {
        const WindowHarness other;
        EXPECT_GT(other.window->y(), 60) << "the first one is not covered";
        other.window->close(); // and does not take its place
    }
    w.window.reset();
    EXPECT_EQ(WindowHarness().window->geometry(), QRect(70, 60, 420, 380));
}

TEST_F(MainWindowTest, TellsAScreenReaderWhatIsWhat)
{
    w.writeInput("in", 10);
    w.window->processCommandLine({w.path("in")});
    w.progress().setProgress(50, {});
    for (QWidget* widget : w.window->findChildren<QWidget*>()) {
        if (!widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus))
            continue;
        auto* accessible = QAccessible::queryAccessibleInterface(widget);
        EXPECT_FALSE(accessible->text(QAccessible::Name).isEmpty()) << widget->metaObject()->className();
    }
    for (const char* name : {"buttonEncrypt", "buttonDecrypt", "buttonStop"})
        EXPECT_NE(w.button(name).accessibleDescription(), "");
    const auto& hint = *w.window->findChild<CDropHint*>();
    auto* accessible = QAccessible::queryAccessibleInterface(const_cast<CDropHint*>(&hint));
    EXPECT_EQ(accessible->role(), QAccessible::Button);
    EXPECT_EQ(accessible->text(QAccessible::Name), "in");
    EXPECT_EQ(accessible->text(QAccessible::Description), "10 bytes");
    EXPECT_TRUE(
        accessible->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    auto* bar = QAccessible::queryAccessibleInterface(w.window->findChild<QProgressBar*>());
    EXPECT_EQ(bar->text(QAccessible::Name), "Progress");
}

TEST_F(MainWindowTest, ChangesTheLanguageAtOnce)
{
    fs::create_directory(folder() / "translations");
    folder().write("translations/quillet.langs.xml",
                   "<locales><locale language='de' country='DE' displayname='Deutsch' file='de.properties' "
                   "filetype='properties'/></locales>");
    folder().write("translations/de.properties", "JobRequest|Password\\ not\\ defined=Kein Passwort\n"
                                                 "Actions|&Quit=&Ende\nCJobFrame|Encrypt=Machen\n");
    w.options.applyAtStart();
    w.writeInput("in", 10);
    w.input().setText(w.path("in"));
    w.output().setText(w.path("out"));
    w.answerPassword("");
    QTest::keyClick(w.window.get(), Qt::Key_F5);
    EXPECT_EQ(w.result(), "Password not defined");
    SAppOptions options = w.options.read();
    struct
    {
        std::uint32_t wanted, stored;
        const char *message, *action, *button;
    } const cases[] = {
        {1031, 1031, "Kein Passwort", "&Ende", "Machen"},
        {1036, 1031, "Kein Passwort", "&Ende", "Machen"}, // without a translation all stays as it is
        {1033, 1033, "Password not defined", "&Quit", "Encrypt"},
    };
    for (const auto& c : cases) {
        options.localeId = c.wanted;
        w.window->appOptionsChanged(options);
        QCoreApplication::processEvents();
        EXPECT_EQ(w.result(), c.message);
        EXPECT_EQ(w.window->findChild<QAction*>("quit")->text(), c.action);
        EXPECT_EQ(w.button("buttonEncrypt").text(), c.button);
        EXPECT_EQ(w.options.read().localeId, c.stored);
    }
}

TEST_F(MainWindowTest, TellsOfWhatCannotBeSaved)
{
    folder().write("file", "");
    const test::Environment nowhere("XDG_CONFIG_HOME", (folder() / "file").c_str());
    QStringList messages;
    w.onDialog<COptionsDialog>([&](COptionsDialog& dialog) {
        const auto* message = dialog.findChild<QLineEdit*>("lineEditMsg");
        messages += message->text();
        w.onDialog<COptionsDialog>([&messages, message](COptionsDialog& again) {
            messages += message->text();
            again.onUiCancel();
        });
        dialog.onUiOk();
    });
    w.window->findChild<QAction*>("options")->trigger();
    ASSERT_EQ(messages.size(), 2);
    EXPECT_EQ(messages[0], "");
    EXPECT_TRUE(messages[1].startsWith("The options can't be saved in ")) << messages[1].toStdString();

    w.onDialog<CSetAlgDialog>([](CSetAlgDialog& dialog) {
        dialog.findChild<QCheckBox*>()->setChecked(true);
        dialog.accept();
    });
    w.window->findChild<QAction*>("default-algorithm")->trigger();
    EXPECT_EQ(w.result(), messages[1].toStdString());
}

} // namespace
