#include "window/WindowHarness.h"

#include "app/widgets/CDropHint.h"
#include "app/widgets/CElidedLabel.h"
#include "common/settings/CAppSettings.h"
#include "crypto/sealed/Argon2.h"
#include "support/Environment.h"
#include "support/Eventually.h"
#include "support/NewThreads.h"
#include "support/OwnMemory.h"
#include "ui/algorithms/CSelectAlgFrame.h"
#include "ui/algorithms/CSetAlgDialog.h"
#include "ui/options/COptionsDialog.h"
#include "ui/style/CLinkLabel.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressBar>
#include <QScreen>
#include <QWindow>
#include <gtest/gtest.h>

#include <atomic>
#include <climits>
#include <condition_variable>
#include <filesystem>
#include <mutex>
#include <tuple>

using namespace thisapp;
using test::WindowHarness;
namespace fs = std::filesystem;

namespace {

/// DES_EDE3, the slowest of all.
constexpr AlgSelection SlowAlgorithm{1, 601};

class MainWindowTest : public test::WindowTest
{
protected:
    /// A job that is at work, and would be for a while.
    void startLongJob()
    {
        folder().write("in", "");
        fs::resize_file(w.folder / "in", 4LL << 30); // sparse
        ASSERT_TRUE(w.form().algFrame().setSelection(SlowAlgorithm));
        encrypt();
        ASSERT_TRUE(
            QTest::qWaitFor([this] { return w.progress().percent() > 0; }, WindowHarness::JobTimeoutMs));
        ASSERT_TRUE(w.isRunning());
    }
};

TEST_F(MainWindowTest, EncryptsAndDecryptsWhatTheUserGives)
{
    for (const std::uint32_t id : {252U, 550U, 200U}) {
        for (const std::size_t size : {std::size_t{0}, std::size_t{1}, std::size_t{300'000}}) {
            SCOPED_TRACE(id);
            w.writeInput("in", size);
            ASSERT_TRUE(w.form().algFrame().setSelection({1, id}));
            encrypt();
            ASSERT_TRUE(w.waitForEnd());
            EXPECT_EQ(w.result(), "File was encrypted successfully");
            EXPECT_EQ(w.progress().percent(), 100.0F);
            run(Qt::Key_F6, w.path("out"), w.path("back"));
            ASSERT_TRUE(w.waitForEnd());
            EXPECT_EQ(w.result(), "File was decrypted successfully");
            EXPECT_EQ(test::readFile(folder() / "in"), test::readFile(folder() / "back"));
            fs::remove(folder() / "out");
            fs::remove(folder() / "back");
        }
    }
    const auto& bar = *w.window->findChild<QProgressBar*>();
    EXPECT_EQ(bar.value(), bar.maximum());
    EXPECT_EQ(std::ranges::max(w.taskbarValues), 100);
    EXPECT_TRUE(w.taskbarValues.back() == 0 && !w.isTaskbarShown);
}

TEST_F(MainWindowTest, RefusesAWrongPasswordBeforeItWrites)
{
    w.writeInput("in", 1000);
    encrypt();
    ASSERT_TRUE(w.waitForEnd());
    run(Qt::Key_F6, w.path("out"), w.path("back"), "wrong");
    ASSERT_TRUE(w.waitForEnd());
    EXPECT_EQ(w.result(), "Failed to decrypt file. Corrupted data (error: 5/4003)");
    EXPECT_EQ(w.text("outputMessage"), "");
    EXPECT_NE(w.text("inputMessage"), "");
    EXPECT_FALSE(fs::exists(folder() / "back"));

    // With rewriting on, a former output is gone by then, and the user is told.
    set({{"RewriteOutputFile", true}});
    folder().write("back", "former");
    run(Qt::Key_F6, w.path("out"), w.path("back"), "wrong");
    ASSERT_TRUE(w.waitForEnd());
    EXPECT_EQ(w.text("outputMessage"), "Output file has been deleted.");
    EXPECT_FALSE(fs::exists(folder() / "back"));
    EXPECT_TRUE(fs::exists(folder() / "out"));
}

/// The link stands until anything else happens.
TEST_F(MainWindowTest, OffersTheAlgorithmThatFits)
{
    const test::UrlRecorder opened;
    for (const bool seal : {false, true}) {
        set({{"SealFiles", seal}});
        w.writeInput("in", 1000);
        ASSERT_TRUE(w.form().algFrame().setSelection({1, 452}));
        encrypt();
        ASSERT_TRUE(w.waitForEnd());
        auto& link = *w.window->findChild<CMessageLine*>("inputMessage")->findChild<CLinkLabel*>();
        const std::function<void()> happenings[] = {
            [this] { w.output().setText(w.path("elsewhere")); },
            [this] { QTest::keyClick(w.form().algFrame().findChild<QComboBox*>(), Qt::Key_Down); },
            [this] { QTest::keyClick(w.window.get(), Qt::Key_F9, Qt::ControlModifier); }, // any command
            [] {},
        };
        for (const auto& happens : happenings) {
            const bool taken = &happens == std::end(happenings) - 1;
            ASSERT_TRUE(w.form().algFrame().setSelection({1, 252}));
            run(Qt::Key_F6, w.path("out"), w.path("back"));
            ASSERT_TRUE(w.waitForEnd());
            EXPECT_EQ(w.text("inputMessage"), "This file was encrypted with Serpent-256.");
            EXPECT_EQ(link.accessibleName(), "Decrypt with Serpent-256");
            happens();
            EXPECT_EQ(link.isVisible(), taken);
            QTest::keyClick(&link, Qt::Key_Return);
            ASSERT_TRUE(w.waitForEnd());
            EXPECT_EQ(fs::exists(folder() / "back"), taken) << w.result();
        }
        EXPECT_EQ(w.algorithms.displayName(w.form().algFrame().selection()), "Serpent-256");
        EXPECT_EQ(test::readFile(folder() / "in"), test::readFile(folder() / "back"));
        fs::remove(folder() / "out");
        fs::remove(folder() / "back");
    }
}

TEST_F(MainWindowTest, KeepsThePasswordOnlyForAnOffer)
{
    static constexpr char Password[] = "Zebras cross 4711 times"; // where nobody can write
    w.writeInput("in", 32 << 20);
    ASSERT_TRUE(w.form().algFrame().setSelection(SlowAlgorithm));
    run(Qt::Key_F5, w.path("in"), w.path("out"), Password);
    ASSERT_TRUE(w.waitForEnd());
    run(Qt::Key_F6, w.path("out"), w.path("back"), Password);
    ASSERT_TRUE(QTest::qWaitFor([this] { return w.progress().percent() > 0; }, WindowHarness::JobTimeoutMs));
    ASSERT_TRUE(w.isRunning());
    EXPECT_FALSE(test::isInMemory(Password)) << "the algorithm is the right one";
    QTest::mouseClick(&w.button("buttonStop"), Qt::LeftButton);
    ASSERT_TRUE(w.waitForEnd());
    EXPECT_EQ(w.result(), "File decryption was canceled");
    EXPECT_FALSE(fs::exists(folder() / "back"));

    const auto makeOffer = [this] {
        ASSERT_TRUE(w.form().algFrame().setSelection({1, 252}));
        run(Qt::Key_F6, w.path("out"), w.path("back"), Password);
        ASSERT_TRUE(w.waitForEnd());
        EXPECT_NE(w.text("inputMessage"), "");
        EXPECT_TRUE(test::isInMemory(Password)) << "for the offer";
    };
    makeOffer();
    w.window->filesDropped(DropOnWindow, {QUrl::fromLocalFile(w.path("out"))}); // which is there already
    EXPECT_EQ(w.text("inputMessage"), "");
    EXPECT_FALSE(test::isInMemory(Password)) << "nothing is offered any more";
    w.output().setText(w.path("elsewhere"));
    EXPECT_EQ(w.text("inputMessage"), "") << "an old sentence is back";
    makeOffer();
    w.window->close();
    EXPECT_FALSE(test::isInMemory(Password)) << "the process may live on for a while";
}

/// No thread is to be had: for the job, and afterwards for the removal of its input.
TEST_F(MainWindowTest, TellsOfAJobThatCannotStart)
{
    static constexpr char Password[] = "Quinces melt 0815 slowly";
    bool threads = false;
    const test::NewThreads none([&threads] { return threads; });
    set({{"RewriteOutputFile", true}, {"DeleteSourceFileAfterEncryption", true}});
    w.writeInput("in", 10);
    for (const auto& [key, start] : {std::pair(Qt::Key_F5, "Failed to start the encryption. "),
                                     std::pair(Qt::Key_F6, "Failed to start the decryption. ")}) {
        folder().write("out", "former");
        run(key, w.path("in"), w.path("out"), Password);
        EXPECT_EQ(w.result(), start + std::string("(error: 5/303)"));
        EXPECT_EQ(w.detail("resultMessage"), "in \u2192 " + (folder() / "out"));
        EXPECT_FALSE(w.isRunning() || fs::exists(folder() / "out"));
        EXPECT_FALSE(test::isInMemory(Password));
    }
    threads = true;
    encrypt();
    w.onDialog<QMessageBox>([&threads](QMessageBox& box) {
        threads = false;
        box.button(QMessageBox::Yes)->click();
    });
    ASSERT_TRUE(QTest::qWaitFor([&] { return !threads; }, WindowHarness::JobTimeoutMs));
    ASSERT_TRUE(w.waitForEnd());
    EXPECT_EQ(w.text("inputMessage"), "The input file could not be deleted. (error: 5/303)");
    EXPECT_EQ(w.kind("inputMessage"), MessageKind::Warning);
}

TEST(OfferTest, EndsByItself)
{
    CAppSettings().clear();
    CAppSettings().setValue("UseConfirmPassword", false);
    WindowHarness w(lookAtInput, WindowHarness::Cheap, std::chrono::milliseconds(1));
    w.writeInput("in", 100);
    for (const auto& [key, input, output, algorithm] :
         {std::tuple(Qt::Key_F5, "in", "out", 452U), std::tuple(Qt::Key_F6, "out", "back", 252U)}) {
        ASSERT_TRUE(w.form().algFrame().setSelection({1, algorithm}));
        w.input().setText(w.path(input));
        w.output().setText(w.path(output));
        w.answerPassword("secret");
        QTest::keyClick(w.window.get(), key);
        ASSERT_TRUE(w.waitForEnd());
    }
    EXPECT_NE(w.text("inputMessage"), "");
    const auto& link = *w.window->findChild<CMessageLine*>("inputMessage")->findChild<CLinkLabel*>();
    EXPECT_TRUE(QTest::qWaitFor([&link] { return !link.isVisible(); }, WindowHarness::JobTimeoutMs));
}

TEST_F(MainWindowTest, SealsAndOpensFiles)
{
    constexpr std::size_t Size = 200'000; // four pieces
    set({{"SealFiles", true},
         {"DeleteSourceFileAfterEncryption", true},
         {"ConfirmDeleteSourceFileAfterEncryption", false}});
    w.writeInput("in", Size);
    const std::string plain = test::readFile(folder() / "in");
    encrypt();
    ASSERT_TRUE(w.waitForEnd());
    EXPECT_EQ(w.result(), "File was encrypted successfully. It is sealed.");
    EXPECT_EQ(fs::file_size(folder() / "out"), 32 + 200'064 + 4 * 16) << "salt, plain format, tags";
    EXPECT_FALSE(fs::exists(folder() / "in")) << w.text("inputMessage");

    run(Qt::Key_F6, w.path("out"), w.path("back"));
    ASSERT_TRUE(w.waitForEnd());
    EXPECT_EQ(w.result(), "File was decrypted successfully. It was sealed and is unchanged.");
    EXPECT_EQ(test::readFile(folder() / "back"), plain);

    std::string damaged = test::readFile(folder() / "out");
    damaged[Size / 2] ^= 1;
    folder().write("damaged", damaged);
    run(Qt::Key_F6, w.path("damaged"), w.path("none"));
    ASSERT_TRUE(w.waitForEnd());
    EXPECT_EQ(w.result(), "Failed to decrypt file. The file is damaged or has been changed (error: 5/4010)");
    EXPECT_EQ(w.text("inputMessage"),
              "The password and the algorithm are right. Try another copy of the file.");
    EXPECT_FALSE(fs::exists(folder() / "none"));

    static constexpr char Password[] = "Walnuts hum 1312 at night"; // needed no more once there is a key
    set({{"SealFiles", true}});
    run(Qt::Key_F5, w.path("back"), w.path("other"), Password);
    ASSERT_TRUE(w.waitForEnd());
    ASSERT_TRUE(w.form().algFrame().setSelection({1, 452}));
    run(Qt::Key_F6, w.path("other"), w.path("none"), Password);
    ASSERT_TRUE(w.waitForEnd());
    EXPECT_EQ(w.text("inputMessage"), "This file was encrypted with AES-256.");
    EXPECT_FALSE(test::isInMemory(Password));
    w.output().setText(w.path("elsewhere")); // no offer any more, and no key either
    tessaly::SecretBytes salt(32, 0);
    std::ifstream(folder() / "other").read(reinterpret_cast<char*>(salt.data()), 32);
    tessaly::SecretBytes root;
    ASSERT_TRUE(
        tessaly::crypto::argon2id(tessaly::SecretText(Password), salt, WindowHarness::Cheap, root).ok());
    std::ranges::for_each(root, [](auto& byte) { byte ^= 0xff; }); // as it stands nowhere else
    EXPECT_FALSE(test::isInMemory({reinterpret_cast<const char*>(root.data()), root.size()}, '\xff'));
}

/// At its finest level, what became of each job.
TEST_F(MainWindowTest, LogsWhatItDoes)
{
    set({{"UseLogFile", true}, {"LogLevel", 6}, {"UseConfirmPassword", false}});
    w.options.applyAtStart();
    for (const char* name : {"one", "two"})
        w.writeInput(name, 1000);
    run(Qt::Key_F6, w.path("one"), w.path("out"));
    ASSERT_TRUE(w.waitForEnd());
    w.answerPassword("secret");
    w.window->processCommandLine({"-decrypt", "-start", w.path("one"), w.path("two")});
    ASSERT_TRUE(w.waitForEnd());
    const auto count = [this](const std::string& text) {
        const QString log = QString::fromStdString(test::readFile(folder() / "quillet.log"));
        return log.count(QString::fromStdString(text));
    };
    EXPECT_TRUE(test::eventually(
        [&] { return count("Failed to encrypt/decrypt. Error: Corrupted data (error: 5/4003)") == 3; }));
    EXPECT_EQ(count("Try to process command line: \"-decrypt\" \"-start\" \"" + (folder() / "one") + "\" \""),
              1);
    set({});
    w.options.applyAtStart();
}

/// At the cost that users have, to be in time.
TEST(SealTest, StopsWhileTheKeyIsMade)
{
    CAppSettings().clear();
    CAppSettings().setValue("SealFiles", true);
    WindowHarness w(lookAtInput, {});
    w.writeInput("in", 10);
    w.input().setText(w.path("in"));
    w.output().setText(w.path("out"));
    w.answerPassword("secret");
    QTest::keyClick(w.window.get(), Qt::Key_F5);
    ASSERT_TRUE(QTest::qWaitFor([&w] { return w.progress().message() != ""; }, WindowHarness::JobTimeoutMs));
    EXPECT_EQ(w.progress().message(), "Making the key of the password. 0.000% processed");
    QTest::mouseClick(&w.button("buttonStop"), Qt::LeftButton);
    ASSERT_TRUE(w.waitForEnd());
    EXPECT_EQ(w.result(), "File encryption was canceled");
    EXPECT_FALSE(fs::exists(w.folder / "out"));
}

TEST_F(MainWindowTest, KeepsAnExistingOutputUnlessToldToRewrite)
{
    w.writeInput("in", 1000);
    folder().write("out", "former");
    encrypt();
    EXPECT_EQ(w.result(), "Output file already exists! A 'not rewrite' option has been selected.");
    EXPECT_EQ(test::readFile(folder() / "out"), "former");
    set({{"RewriteOutputFile", true}});
    encrypt();
    ASSERT_TRUE(w.waitForEnd());
    EXPECT_EQ(w.result(), "File was encrypted successfully");
    EXPECT_EQ(fs::file_size(folder() / "out"), 1056U);
}

TEST_F(MainWindowTest, StopsInTheMiddle)
{
    startLongJob();
    EXPECT_TRUE(w.window->windowTitle().contains("% - in - "));
    EXPECT_FALSE(w.input().isEnabled() || w.form().acceptDrops());
    const QPalette& palette = w.input().palette();
    EXPECT_EQ(palette.color(QPalette::Disabled, QPalette::Text),
              palette.color(QPalette::Active, QPalette::Text))
        << "names are to be read";
    EXPECT_TRUE(w.isTaskbarShown);
    for (const auto& [id, offered] : {std::pair("encrypt", false), std::pair("decrypt", false),
                                      std::pair("default-algorithm", false), std::pair("stop", true)})
        EXPECT_EQ(w.window->findChild<QAction*>(id)->isEnabled(), offered) << id;
    w.window->filesDropped(DropOnWindow, {QUrl::fromLocalFile(w.path("other"))});
    EXPECT_EQ(w.input().text(), w.path("in"));
    EXPECT_FALSE(fs::exists(folder() / "out")) << "not before it is whole";

    QTest::keyClick(w.window.get(), Qt::Key_F5);
    float percent = w.progress().percent();
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return w.progress().percent() > percent; }, WindowHarness::JobTimeoutMs));
    EXPECT_EQ(w.progress().notice(), "Encryption/Decryption already running.") << "after a report, too";
    percent = w.progress().percent();
    QTest::keyClick(w.window.get(), Qt::Key_F8, Qt::ControlModifier);
    EXPECT_EQ(w.input().text() + w.output().text(), "");
    EXPECT_EQ(w.progress().percent(), percent);
    EXPECT_NE(w.progress().message(), "");

    QTest::mouseClick(&w.button("buttonStop"), Qt::LeftButton);
    EXPECT_FALSE(w.button("buttonStop").isEnabled()) << "nothing more to stop";
    ASSERT_TRUE(w.waitForEnd());
    EXPECT_EQ(w.result(), "File encryption was canceled");
    EXPECT_EQ(w.text("outputMessage"), "Output file has been deleted.");
    EXPECT_FALSE(fs::exists(folder() / "out"));
    EXPECT_TRUE(fs::exists(folder() / "in"));
    EXPECT_EQ(w.window->windowTitle(), "Quillet");
    EXPECT_EQ(w.progress().notice(), "");
}

TEST_F(MainWindowTest, NamesTheFilesOfTheJobWhateverTheFieldsHold)
{
    startLongJob();
    w.writeInput("other", 10);
    w.window->processCommandLine({w.path("other")});
    QTest::keyClick(w.window.get(), Qt::Key_F8);
    ASSERT_TRUE(w.waitForEnd());
    EXPECT_EQ(w.input().text(), w.path("other"));
    EXPECT_EQ(w.result(), "File encryption was canceled");
    EXPECT_EQ(w.detail("resultMessage"), "in \u2192 " + (folder() / "out"));
    EXPECT_TRUE(w.window->findChild<CMessageLine*>("resultMessage")
                    ->findChild<CElidedLabel*>()
                    ->toolTip()
                    .contains(w.path("out")));
    EXPECT_TRUE(w.input().toolTip().contains(w.path("other")));
    EXPECT_EQ(w.text("outputMessage"), "Output file has been deleted.");
    EXPECT_EQ(w.detail("outputMessage"), folder() / "out");
    w.output().setText(w.path("out"));
    EXPECT_EQ(w.detail("outputMessage"), "") << "the field says it";

    folder().write("plain", "no encrypted file, but long enough to hold the header of one, as it may be");
    run(Qt::Key_F6, w.path("plain"), w.path("back"));
    ASSERT_TRUE(w.waitForEnd());
    EXPECT_EQ(w.result(), "Failed to decrypt file. Corrupted data (error: 5/4003)");
    EXPECT_EQ(w.detail("resultMessage"), "The file " + (folder() / "plain") + " could not be processed.");
}

TEST_F(MainWindowTest, ClosingEndsTheJobWithoutAPartialOutput)
{
    startLongJob();
    EXPECT_TRUE(w.window->close());
    w.window.reset();
    EXPECT_FALSE(fs::exists(folder() / "out"));
    EXPECT_TRUE(fs::exists(folder() / "in"));
}

TEST_F(MainWindowTest, DeletesTheInputAsTheUserDecides)
{
    const std::string deleted =
        "Input file has been deleted after the successfully encryption according to your options";
    struct
    {
        bool wanted, confirm;
        QMessageBox::StandardButton answer;
        std::string message;
        MessageKind kind = MessageKind::Plain;
        bool linked = false;
    } const cases[] = {
        {false, true, QMessageBox::NoButton, ""},
        {true, true, QMessageBox::No, ""},
        {true, true, QMessageBox::Yes, deleted, MessageKind::Success},
        {true, false, QMessageBox::NoButton, deleted, MessageKind::Success},
        {true, true, QMessageBox::NoButton, "The input file has been kept: it has another name (hard link).",
         MessageKind::Warning, true},
    };
    const char* name = "<b>in";
    for (const auto& c : cases) {
        set({{"DeleteSourceFileAfterEncryption", c.wanted},
             {"ConfirmDeleteSourceFileAfterEncryption", c.confirm}});
        w.writeInput(name, 5000);
        if (c.linked)
            fs::create_hard_link(folder() / name, folder() / "twin");
        bool asked = false;
        run(Qt::Key_F5, w.path(name), w.path("out"));
        if (c.answer != QMessageBox::NoButton)
            w.onDialog<QMessageBox>([&](QMessageBox& box) {
                asked = true;
                EXPECT_EQ(box.text(),
                          "Are you sure you want to delete the input file after encryption?\nFile: '" +
                              w.path(name) + "'\n");
                EXPECT_EQ(box.textFormat(), Qt::PlainText) << "a name is no markup";
                EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::No));
                QTest::mouseClick(box.button(c.answer), Qt::LeftButton);
            });
        ASSERT_TRUE(w.waitForEnd());
        EXPECT_EQ(asked, c.answer != QMessageBox::NoButton);
        EXPECT_EQ(fs::exists(folder() / name), c.message != deleted);
        EXPECT_EQ(w.text("inputMessage"), c.message);
        EXPECT_EQ(w.kind("inputMessage"), c.kind);
        fs::remove(folder() / "out");
    }
}

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

TEST_F(MainWindowTest, TakesDroppedFiles)
{
    w.writeInput("in", 10);
    const auto drop = [](QWidget& target, const QMimeData& data) {
        QDragEnterEvent enter({}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&target, &enter);
        if (enter.isAccepted()) {
            QDropEvent event({}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&target, &event);
        }
        return enter.isAccepted();
    };
    const auto lit = [this, idle = w.window->findChild<CDropHint*>()->grab().toImage()] {
        return w.window->findChild<CDropHint*>()->grab().toImage() != idle;
    };
    QMimeData elsewhere;
    elsewhere.setUrls({QUrl("https://example.org/x")});
    QDragEnterEvent enter({}, Qt::CopyAction, &elsewhere, Qt::LeftButton, Qt::NoModifier);
    QDragLeaveEvent leave;
    for (QEvent* event : std::initializer_list<QEvent*>{&enter, &leave}) {
        QApplication::sendEvent(&w.form(), event);
        EXPECT_EQ(lit(), event == &enter);
    }
    EXPECT_TRUE(drop(w.form(), elsewhere));
    EXPECT_FALSE(lit());
    QMimeData words;
    words.setText("words");
    for (QWidget* target : std::initializer_list<QWidget*>{&w.form(), &w.input(), &w.output()})
        EXPECT_FALSE(drop(*target, words));

    fs::create_directory(folder() / "sub");
    folder().write("n\xff", "");
    folder().write("in ", "");
    const QString base = "file://" + w.path("");
    const std::tuple<QStringList, QString, const char*> cases[] = {
        {{base + "in"}, "in", ""},
        {{"https://example.org/x", base + "in", "file:///y"}, "in", "Not found, and left out: y, x"},
        {{"https://example.org/x", base + "in"}, "in", "Only one of the dropped files was taken."},
        {{"file://LocalHost" + w.path("in")}, "in", ""},
        {{base + "n%FF"}, QString("n") + QChar(0xdcff), ""},
        {{base + "in%20"}, "in ", ""}, // while there is an "in", too
        {{base + "missing"}, "missing", "The dropped file is not found."},
        {{base + "sub"},
         "sub",
         "Only a single file can be encrypted or decrypted, not a folder or a device."},
        {{"file://elsewhere/in"}, "", "Only a file on this computer can be dropped here."},
        {{"https://example.org/x"}, "", "Only a file on this computer can be dropped here."},
    };
    for (const auto& [urls, name, message] : cases) {
        SCOPED_TRACE(urls.join(' ').toStdString());
        QMimeData files;
        files.setUrls(QUrl::fromStringList(urls));
        const QString path = name.isEmpty() ? QString() : w.path("") + name;
        const bool usable = QString(message).startsWith("Not") || QString(message).startsWith("Only one") ||
                            QString(message).isEmpty();
        for (QWidget* target : std::initializer_list<QWidget*>{&w.form(), &w.input()}) {
            QTest::keyClick(w.window.get(), Qt::Key_F8, Qt::ControlModifier);
            EXPECT_TRUE(drop(*target, files));
            EXPECT_EQ(w.input().text(), path);
            EXPECT_EQ(w.output().text(), usable ? path + ".enc" : "");
            EXPECT_EQ(w.text("inputMessage"), message);
            EXPECT_EQ(w.window->findChild<CDropHint*>()->accessibleName(), usable ? name : "Drop files here");
        }
        QTest::keyClick(w.window.get(), Qt::Key_F8, Qt::ControlModifier);
        EXPECT_TRUE(drop(w.output(), files));
        EXPECT_EQ(w.input().text(), "");
        EXPECT_EQ(w.output().text(), path);
    }
}

/// A program that hands files over as a move deletes them afterwards.
TEST_F(MainWindowTest, LeavesDraggedFilesWithTheirOwner)
{
    QMimeData files;
    files.setUrls({QUrl("file:///x")});
    for (QWidget* target : std::initializer_list<QWidget*>{&w.form(), &w.input()})
        for (const auto possible : {Qt::MoveAction | Qt::CopyAction, Qt::DropActions(Qt::MoveAction)}) {
            QDragEnterEvent enter({}, possible, &files, Qt::LeftButton, Qt::ShiftModifier);
            QApplication::sendEvent(target, &enter);
            EXPECT_TRUE(enter.isAccepted());
            QDragMoveEvent move({}, possible, &files, Qt::LeftButton, Qt::ShiftModifier);
            QApplication::sendEvent(target, &move);
            EXPECT_EQ(move.isAccepted(), possible.testFlag(Qt::CopyAction));
            EXPECT_TRUE(!move.isAccepted() || move.dropAction() == Qt::CopyAction);
            QDropEvent drop({}, possible, &files, Qt::LeftButton, Qt::ShiftModifier);
            QApplication::sendEvent(target, &drop);
            EXPECT_NE(drop.dropAction(), Qt::MoveAction);
        }
}

/// Answers of a slow mount, given when the test says so.
class SlowMount
{
public:
    thisapp::InputFacts operator()(const QString& text, const NamingSettings& naming)
    {
        ++looks;
        std::unique_lock lock(m_mutex);
        m_news.wait(lock, [&] { return text.size() >= m_least; });
        ++answers;
        return lookAtInput(text, naming);
    }
    /// Answers are given for texts of that length or longer.
    void answerFrom(int length)
    {
        const std::scoped_lock lock(m_mutex);
        m_least = length;
        m_news.notify_all();
    }

    std::atomic<int> looks = 0;
    std::atomic<int> answers = 0;

private:
    std::mutex m_mutex;
    std::condition_variable m_news;
    int m_least = 0;
};

/// The newest answer comes first.
TEST(SlowFileSystemTest, IsLookedAtOnceForEachChangeWithoutStalling)
{
    CAppSettings().clear();
    SlowMount mount;
    WindowHarness w(std::ref(mount));
    const auto eventually = [](const std::function<bool()>& condition) {
        return QTest::qWaitFor(condition, WindowHarness::JobTimeoutMs);
    };
    for (const char* name : {"a", "ab", "abc"})
        w.folder.write(name, "");
    w.input().setText(w.path(""));
    ASSERT_TRUE(eventually([&mount] { return mount.answers == 1; }));
    mount.looks = mount.answers = 0;
    mount.answerFrom(INT_MAX);
    for (const char letter : {'a', 'b', 'c'}) {
        QTest::keyClick(&w.input(), letter);
        QCoreApplication::processEvents();
    }
    ASSERT_TRUE(eventually([&mount] { return mount.looks == 3; }));
    EXPECT_EQ(mount.answers, 0) << "and the window has not waited for them";
    mount.answerFrom(w.path("abc").size());
    ASSERT_TRUE(eventually([&w] { return !w.output().text().isEmpty(); }));
    EXPECT_EQ(w.output().text(), w.path("abc.enc"));
    mount.answerFrom(0);
    ASSERT_TRUE(eventually([&mount] { return mount.answers == 3; })); // which nobody wants any more
    const auto& hint = *w.window->findChild<CDropHint*>();
    EXPECT_EQ(hint.accessibleName(), "abc");
    QTest::keyClick(&w.input(), 'd');
    ASSERT_TRUE(eventually([&hint] { return hint.accessibleName() == "Drop files here"; }));
    EXPECT_EQ(w.output().text(), w.path("abc.enc"));
    EXPECT_EQ(mount.looks, 4);

    // A drop that the user has typed over has nothing to say any more.
    mount.answerFrom(INT_MAX);
    w.window->filesDropped(DropOnWindow, {QUrl::fromLocalFile(w.path("a")), QUrl("https://example.org/x")});
    QTest::keyClick(&w.input(), 'b');
    mount.answerFrom(0);
    ASSERT_TRUE(eventually([&hint] { return hint.accessibleName() == "ab"; }));
    EXPECT_EQ(w.text("inputMessage"), "");

    // A command that can't do without the answer waits for it; an output given meanwhile stays.
    for (const char* given : {"", "mine"}) {
        w.output().clear();
        mount.answerFrom(INT_MAX);
        mount.looks = 0;
        w.window->processCommandLine({"-ifile", w.path("ab")});
        if (*given)
            w.output().setText(w.path(given));
        w.answerPassword("");
        QTimer::singleShot(0, w.window.get(), [&mount] { mount.answerFrom(0); });
        QTest::keyClick(w.window.get(), Qt::Key_F5);
        EXPECT_EQ(w.result(), "Password not defined");
        EXPECT_EQ(w.output().text(), w.path(*given ? given : "ab.enc"));
        EXPECT_EQ(mount.looks, 1);
    }
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
