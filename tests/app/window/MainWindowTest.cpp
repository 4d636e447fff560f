#include "window/WindowHarness.h"

#include "support/Environment.h"
#include "ui/algorithms/CSetAlgDialog.h"
#include "ui/options/COptionsDialog.h"

#include <QAccessible>

namespace test {

using MainWindowTest = WindowTest;

TEST_F(MainWindowTest, ProposesTheOutputOfAChosenInput)
{
    writeInput("chosen.enc");
    writeInput("chosen");
    answerFile("chosen.enc");
    QTest::keyClick(&output(), Qt::Key_O, Qt::ControlModifier);
    EXPECT_TRUE(asked.startsWith("Add file to encrypt/decrypt|"));
    EXPECT_EQ(input().text() + output().text(), path("chosen.enc") + path("chosen.dec"));
    EXPECT_TRUE(button("buttonDecrypt").isDefault());
    clear();
    EXPECT_EQ(input().text() + output().text(), "");

    for (const QString& typed : {QString(), path("typed")}) {
        output().setText(typed);
        input().clear();
        answerFile("chosen");
        answerPassword("");
        press(Qt::Key_F5);
        EXPECT_TRUE(asked.startsWith("Select file to encrypt|"));
        EXPECT_EQ(result(), "Password not defined");
        EXPECT_EQ(output().text(), typed.isEmpty() ? path("chosen.enc") : typed);
    }
    set({{"UseOutputFileAutogenerator", false}});
    output().clear();
    input().setText(path("chosen"));
    answerFile(nullptr);
    press(Qt::Key_F5);
    EXPECT_EQ(asked, "Define output file|.|save");
    EXPECT_EQ(text("outputMessage"), "Output file is not defined.");
}

TEST_F(MainWindowTest, NotifiesWhoLooksElsewhere)
{
    writeInput("in", 100);
    struct
    {
        Qt::Key key;
        QWidget* active;
        QStringList notifications;
    } const cases[] = {
        {Qt::Key_F5, window.get(), {}},
        {Qt::Key_F5, nullptr, {"File was encrypted successfully|out >"}},
        {Qt::Key_F6, nullptr, {"Failed to decrypt file. Corrupted data (error: 5/4003)|in"}},
    };
    for (const auto& c : cases) {
        notifications.clear();
        start(c.key, "in", "out");
        QApplication::setActiveWindow(c.active);
        waitForEnd();
        fs::remove(folder / "out");
        EXPECT_EQ(notifications, c.notifications);
    }
}

TEST_F(MainWindowTest, OpensOnlyFoldersThatExist)
{
    UrlRecorder opened;
    makeFolder("sub");
    for (const QString& text : {QString(), path("no folder/in"), path("in"), " " + path("sub/none")}) {
        input().setText(text);
        press(Qt::Key_F9, Qt::ControlModifier);
    }
    output().setText("/out");
    press(Qt::Key_F10, Qt::ControlModifier);
    const QList<QUrl> expected{QUrl("file://" + path("").chopped(1)), QUrl("file://" + path("sub")),
                               QUrl("file:///")};
    EXPECT_EQ(opened.urls, expected);
}

TEST_F(MainWindowTest, DoesWhatTheCommandLineSays)
{
    writeInput("in", 100);
    window->processCommandLine({path("in")});
    EXPECT_EQ(input().text() + output().text(), path("in") + path("in.enc"));
    EXPECT_FALSE(isRunning());

    answerPassword("secret");
    window->processCommandLine(
        {"-start", "-ifile", path("in"), "/ofile", path("out"), "-library", "none", "-algorithm", "aes-128"});
    EXPECT_EQ(algorithm(), "AES-128");
    EXPECT_EQ(waitForEnd(), "File was encrypted successfully");
    EXPECT_TRUE(exists("out"));

    window->processCommandLine({"-algorithm", "AES-256", "-library", "10"});
    window->processCommandLine({"-algorithm", "no such", "-ifile", path("missing")});
    EXPECT_EQ(algorithm(), "AES-128");
    EXPECT_EQ(output().text(), path("out")) << "no proposal for what isn't there";
    writeInput("a[*]"); // the toolkit's mark
    window->processCommandLine({path("a[*]")});
    EXPECT_EQ(window->windowHandle()->title(), "a[*] - Quillet");
    input().setText(path("in"));
    ASSERT_TRUE(waitFor([this] { return hint().accessibleName() == "in"; }));
    EXPECT_EQ(output().text(), path("a[*].enc")) << "a proposal is for what the user gives";
}

TEST_F(MainWindowTest, FitsTheScreenAndComesBackWhereItWas)
{
    EXPECT_TRUE(window->screen()->availableGeometry().contains(window->frameGeometry()));
    EXPECT_LE(window->minimumSizeHint().height(), 300);
    const auto hintHeight = [this] {
        QCoreApplication::processEvents();
        return hint().height();
    };
    const int idle = hintHeight();
    writeInput("in");
    window->processCommandLine({path("in")});
    const auto words = [] { return QString("word ").repeated(60); };
    progress().setProgress(50, {MessageKind::Plain, words});
    for (const Area area : {Area::Input, Area::Output, Area::Result})
        form().showMessage(area, {MessageKind::Error, words});
    EXPECT_EQ(hintHeight(), idle) << "whatever there is to say";
    window->setGeometry(70, 60, 420, 380);
    window->close();
    {
        const WindowHarness other;
        EXPECT_GT(other.window->y(), 60) << "the first one is not covered";
        other.window->close(); // and does not take its place
    }
    window.reset();
    EXPECT_EQ(WindowHarness().window->geometry(), QRect(70, 60, 420, 380));
}

TEST_F(MainWindowTest, TellsAScreenReaderWhatIsWhat)
{
    writeInput("in");
    window->processCommandLine({path("in")});
    progress().setProgress(50, {});
    const auto tell = [](QWidget& widget, QAccessible::Text what) {
        return QAccessible::queryAccessibleInterface(&widget)->text(what);
    };
    for (QWidget* widget : window->findChildren<QWidget*>())
        if (widget->isVisible() && widget->focusPolicy() & Qt::TabFocus) {
            EXPECT_NE(tell(*widget, QAccessible::Name), "") << widget->metaObject()->className();
        }
    for (const char* name : {"buttonEncrypt", "buttonDecrypt", "buttonStop"})
        EXPECT_NE(button(name).accessibleDescription(), "");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&hint())->role(), QAccessible::Button);
    EXPECT_EQ(tell(hint(), QAccessible::Name) + tell(hint(), QAccessible::Description), "in10 bytes");
    EXPECT_EQ(tell(find<QProgressBar>(), QAccessible::Name), "Progress");
}

TEST_F(MainWindowTest, ChangesTheLanguageAtOnce)
{
    makeFolder("translations");
    folder.write("translations/quillet.langs.xml",
                 "<locales><locale language='de' country='DE' displayname='Deutsch' file='de.properties' "
                 "filetype='properties'/></locales>");
    folder.write("translations/de.properties", "JobRequest|Password\\ not\\ defined=Kein Passwort\n"
                                               "Actions|&Quit=&Ende\nCJobFrame|Encrypt=Machen\n");
    options.applyAtStart();
    writeInput("in");
    start(Qt::Key_F5, "in", "out", "");
    EXPECT_EQ(result(), "Password not defined");
    SAppOptions changed = options.read();
    const std::tuple<std::uint32_t, std::uint32_t, const char*> cases[] = {
        // wanted; stored; what is said
        {1031, 1031, "Kein Passwort|&Ende|Machen"},
        {1036, 1031, "Kein Passwort|&Ende|Machen"}, // without a translation all stays as it is
        {1033, 1033, "Password not defined|&Quit|Encrypt"},
    };
    for (const auto& [wanted, stored, said] : cases) {
        changed.localeId = wanted;
        window->appOptionsChanged(changed);
        QCoreApplication::processEvents();
        EXPECT_EQ(
            result() +
                ("|" + find<QAction>("quit").text() + "|" + button("buttonEncrypt").text()).toStdString(),
            said);
        EXPECT_EQ(options.read().localeId, stored);
    }
}

TEST_F(MainWindowTest, TellsOfWhatCannotBeSaved)
{
    folder.write("file", "");
    const Environment nowhere("XDG_CONFIG_HOME", (folder / "file").c_str());
    QStringList messages;
    onDialog<COptionsDialog>([&](COptionsDialog& dialog) {
        const auto& message = child<QLineEdit>(dialog, "lineEditMsg");
        messages += message.text();
        onDialog<COptionsDialog>([&](COptionsDialog& again) {
            messages += message.text();
            again.onUiCancel();
        });
        dialog.onUiOk();
    });
    trigger("options");
    ASSERT_EQ(messages.size(), 2);
    EXPECT_EQ(messages[0], "");
    EXPECT_TRUE(messages[1].startsWith("The options can't be saved in ")) << messages[1].toStdString();

    onDialog<CSetAlgDialog>([](CSetAlgDialog& dialog) {
        child<QCheckBox>(dialog).setChecked(true);
        dialog.accept();
    });
    trigger("default-algorithm");
    EXPECT_EQ(result(), messages[1].toStdString());
}

} // namespace test
