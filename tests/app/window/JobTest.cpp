#include "window/WindowHarness.h"

#include "app/widgets/CElidedLabel.h"
#include "common/settings/CAppSettings.h"
#include "crypto/sealed/Argon2.h"
#include "support/Eventually.h"
#include "support/NewThreads.h"
#include "support/OwnMemory.h"
#include "ui/algorithms/CSelectAlgFrame.h"

#include <QMessageBox>
#include <QProgressBar>
#include <gtest/gtest.h>

#include <filesystem>

using namespace thisapp;
using test::WindowHarness;
namespace fs = std::filesystem;

namespace {

/// DES_EDE3, the slowest of all.
constexpr AlgSelection SlowAlgorithm{1, 601};

class JobTest : public test::WindowTest
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

TEST_F(JobTest, EncryptsAndDecryptsWhatTheUserGives)
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

TEST_F(JobTest, RefusesAWrongPasswordBeforeItWrites)
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

/// No thread is to be had: for the job, and afterwards for the removal of its input.
TEST_F(JobTest, TellsOfAJobThatCannotStart)
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

TEST_F(JobTest, SealsAndOpensFiles)
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
TEST_F(JobTest, LogsWhatItDoes)
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

TEST_F(JobTest, KeepsAnExistingOutputUnlessToldToRewrite)
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

TEST_F(JobTest, StopsInTheMiddle)
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

TEST_F(JobTest, NamesTheFilesOfTheJobWhateverTheFieldsHold)
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

TEST_F(JobTest, ClosingEndsTheJobWithoutAPartialOutput)
{
    startLongJob();
    EXPECT_TRUE(w.window->close());
    w.window.reset();
    EXPECT_FALSE(fs::exists(folder() / "out"));
    EXPECT_TRUE(fs::exists(folder() / "in"));
}

TEST_F(JobTest, DeletesTheInputAsTheUserDecides)
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

} // namespace
