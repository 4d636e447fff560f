#include "window/WindowHarness.h"

#include "crypto/sealed/Argon2.h"
#include "support/Eventually.h"
#include "support/NewThreads.h"
#include "support/OwnMemory.h"

namespace test {

class JobTest : public WindowTest
{
protected:
    /// A job that is at work, and would be for a while.
    void startLongJob()
    {
        folder.write("in", "");
        fs::resize_file(folder / "in", 4LL << 30); // sparse
        select(SlowAlgorithm);
        start(Qt::Key_F5, "in", "out");
        ASSERT_TRUE(waitFor([this] { return progress().percent() > 0; }));
        ASSERT_TRUE(isRunning());
    }
};

TEST_F(JobTest, EncryptsAndDecryptsWhatTheUserGives)
{
    set({{"RewriteOutputFile", true}});
    for (const auto& [algorithm, size] : {std::pair(252, 0), std::pair(550, 1), std::pair(200, 300'000)}) {
        SCOPED_TRACE(algorithm);
        writeInput("in", std::size_t(size));
        select(std::uint32_t(algorithm));
        EXPECT_EQ(encrypt(), "File was encrypted successfully");
        EXPECT_EQ(progress().percent(), 100.0F);
        EXPECT_EQ(decrypt(), "File was decrypted successfully");
        EXPECT_EQ(read("in"), read("back"));
    }
    EXPECT_EQ(find<QProgressBar>().value(), find<QProgressBar>().maximum());
    EXPECT_EQ(std::ranges::max(taskbarValues), 100);
    EXPECT_TRUE(taskbarValues.back() == 0 && !isTaskbarShown);
}

TEST_F(JobTest, RefusesAWrongPasswordBeforeItWrites)
{
    writeInput("in", 1000);
    encrypt();
    EXPECT_EQ(run(Qt::Key_F6, "out", "back", "wrong"),
              "Failed to decrypt file. Corrupted data (error: 5/4003)");
    EXPECT_EQ(text("outputMessage"), "");
    EXPECT_NE(text("inputMessage"), "");
    EXPECT_FALSE(exists("back"));

    // With rewriting on, a former output is gone by then, and the user is told.
    set({{"RewriteOutputFile", true}});
    folder.write("back", "former");
    run(Qt::Key_F6, "out", "back", "wrong");
    EXPECT_EQ(text("outputMessage"), "Output file has been deleted.");
    EXPECT_TRUE(!exists("back") && exists("out"));
}

/// No thread is to be had: for the job, and afterwards for the removal of its input.
TEST_F(JobTest, TellsOfAJobThatCannotStart)
{
    static constexpr char Password[] = "Quinces melt 0815 slowly";
    bool threads = false;
    const NewThreads none([&threads] { return threads; });
    set({{"RewriteOutputFile", true}, {"DeleteSourceFileAfterEncryption", true}});
    writeInput("in");
    for (const auto& [key, start] : {std::pair(Qt::Key_F5, "Failed to start the encryption. "),
                                     std::pair(Qt::Key_F6, "Failed to start the decryption. ")}) {
        folder.write("out", "former");
        EXPECT_EQ(run(key, "in", "out", Password), start + std::string("(error: 5/303)"));
        EXPECT_EQ(detail("resultMessage"), "in \u2192 " + (folder / "out"));
        EXPECT_FALSE(isRunning() || exists("out") || isInMemory(Password));
    }
    threads = true;
    start(Qt::Key_F5, "in", "out");
    onDialog<QMessageBox>([&threads](QMessageBox& box) {
        threads = false;
        box.button(QMessageBox::Yes)->click();
    });
    ASSERT_TRUE(waitFor([&] { return !threads && !isRunning(); }));
    EXPECT_EQ(text("inputMessage"), "The input file could not be deleted. (error: 5/303)");
    EXPECT_EQ(kind("inputMessage"), MessageKind::Warning);
}

TEST_F(JobTest, SealsAndOpensFiles)
{
    constexpr std::size_t Size = 200'000; // four pieces
    set({{"SealFiles", true},
         {"DeleteSourceFileAfterEncryption", true},
         {"ConfirmDeleteSourceFileAfterEncryption", false}});
    writeInput("in", Size);
    const std::string plain = read("in");
    EXPECT_EQ(encrypt(), "File was encrypted successfully. It is sealed.");
    EXPECT_EQ(fs::file_size(folder / "out"), 32 + 200'064 + 4 * 16) << "salt, plain format, tags";
    EXPECT_FALSE(exists("in")) << text("inputMessage");
    EXPECT_EQ(decrypt(), "File was decrypted successfully. It was sealed and is unchanged.");
    EXPECT_EQ(read("back"), plain);
    damage("out");
    EXPECT_EQ(run(Qt::Key_F6, "out", "none"),
              "Failed to decrypt file. The file is damaged or has been changed (error: 5/4010)");
    EXPECT_EQ(text("inputMessage"),
              "The password and the algorithm are right. Try another copy of the file.");
    EXPECT_FALSE(exists("none"));

    static constexpr char Password[] = "Walnuts hum 1312 at night"; // needed no more once there is a key
    set({{"SealFiles", true}});
    run(Qt::Key_F5, "back", "other", Password);
    select(452);
    run(Qt::Key_F6, "other", "none", Password);
    EXPECT_EQ(text("inputMessage"), "This file was encrypted with AES-256.");
    EXPECT_FALSE(isInMemory(Password));
    output().setText(path("elsewhere")); // no offer any more, and no key either
    const std::string salt = read("other").substr(0, 32);
    tessaly::SecretBytes root;
    ASSERT_TRUE(
        tessaly::crypto::argon2id(tessaly::SecretText(Password), {salt.begin(), salt.end()}, Cheap, root)
            .ok());
    std::ranges::for_each(root, [](auto& byte) { byte ^= 0xff; }); // as it stands nowhere else
    EXPECT_FALSE(isInMemory({reinterpret_cast<const char*>(root.data()), root.size()}, '\xff'));
}

/// At its finest level, what became of each job.
TEST_F(JobTest, LogsWhatItDoes)
{
    set({{"UseLogFile", true}, {"LogLevel", 6}});
    options.applyAtStart();
    for (const char* name : {"one", "two"})
        writeInput(name, 1000);
    run(Qt::Key_F6, "one", "out");
    answerPassword("secret");
    window->processCommandLine({"-decrypt", "-start", path("one"), path("two")});
    waitForEnd();
    const auto count = [this](const std::string& text) {
        return QString::fromStdString(read("quillet.log")).count(QString::fromStdString(text));
    };
    EXPECT_TRUE(eventually(
        [&] { return count("Failed to encrypt/decrypt. Error: Corrupted data (error: 5/4003)") == 3; }));
    EXPECT_EQ(count("Try to process command line: \"-decrypt\" \"-start\" \"" + (folder / "one") + "\" \""),
              1);
    set({});
    options.applyAtStart();
}

/// At the cost that users have, to be in time.
struct SealTest : WindowTest
{
    SealTest() : WindowTest(lookAtInput, tessaly::crypto::Argon2Cost{}) {}
};

TEST_F(SealTest, StopsWhileTheKeyIsMade)
{
    set({{"SealFiles", true}});
    writeInput("in");
    start(Qt::Key_F5, "in", "out");
    ASSERT_TRUE(waitFor([this] { return progress().message() != ""; }));
    EXPECT_EQ(progress().message(), "Making the key of the password. 0.000% processed");
    button("buttonStop").click();
    EXPECT_EQ(waitForEnd(), "File encryption was canceled");
    EXPECT_FALSE(exists("out"));
}

TEST_F(JobTest, StopsInTheMiddleAndNamesItsFilesWhateverTheFieldsHold)
{
    startLongJob();
    EXPECT_TRUE(window->windowTitle().contains("% - in - "));
    EXPECT_FALSE(input().isEnabled() || form().acceptDrops());
    const QPalette& palette = input().palette();
    EXPECT_EQ(palette.color(QPalette::Disabled, QPalette::Text),
              palette.color(QPalette::Active, QPalette::Text))
        << "names are to be read";
    EXPECT_TRUE(isTaskbarShown);
    for (const char* id : {"encrypt", "decrypt", "default-algorithm", "stop"})
        EXPECT_EQ(find<QAction>(id).isEnabled(), id == std::string("stop")) << id;
    window->filesDropped(DropOnWindow, {QUrl::fromLocalFile(path("other"))});
    EXPECT_EQ(input().text(), path("in"));
    EXPECT_FALSE(exists("out")) << "not before it is whole";

    press(Qt::Key_F5);
    float percent = progress().percent();
    ASSERT_TRUE(waitFor([&] { return progress().percent() > percent; }));
    EXPECT_EQ(progress().notice(), "Encryption/Decryption already running.") << "after a report, too";
    percent = progress().percent();
    clear();
    EXPECT_EQ(input().text() + output().text(), "");
    EXPECT_EQ(progress().percent(), percent);
    EXPECT_NE(progress().message(), "");
    writeInput("other");
    window->processCommandLine({path("other")});
    button("buttonStop").click();
    EXPECT_FALSE(button("buttonStop").isEnabled()) << "nothing more to stop";
    EXPECT_EQ(waitForEnd(), "File encryption was canceled");
    EXPECT_EQ(detail("resultMessage"), "in \u2192 " + (folder / "out"));
    EXPECT_TRUE(child<CElidedLabel>(find<CMessageLine>("resultMessage")).toolTip().contains(path("out")));
    EXPECT_EQ(text("outputMessage") + '|' + detail("outputMessage"),
              "Output file has been deleted.|" + (folder / "out"));
    EXPECT_TRUE(!exists("out") && exists("in"));
    EXPECT_EQ(window->windowTitle(), "other - Quillet");
    EXPECT_EQ(progress().notice(), "");
    EXPECT_EQ(input().text(), path("other"));
    EXPECT_TRUE(input().toolTip().contains(path("other")));
    output().setText(path("out"));
    EXPECT_EQ(detail("outputMessage"), "") << "the field says it";

    folder.write("plain", "no encrypted file, but long enough to hold the header of one, as it may be");
    EXPECT_EQ(run(Qt::Key_F6, "plain", "back"), "Failed to decrypt file. Corrupted data (error: 5/4003)");
    EXPECT_EQ(detail("resultMessage"), "The file " + (folder / "plain") + " could not be processed.");
}

TEST_F(JobTest, ClosingEndsTheJobWithoutAPartialOutput)
{
    startLongJob();
    EXPECT_TRUE(window->close());
    window.reset();
    EXPECT_TRUE(!exists("out") && exists("in"));
}

TEST_F(JobTest, DeletesTheInputAsTheUserDecides)
{
    const std::string deleted =
        "Input file has been deleted after the successfully encryption according to your options";
    const std::string kept = "The input file has been kept: it has another name (hard link).";
    using Answer = std::optional<QMessageBox::StandardButton>;
    struct
    {
        bool wanted, confirm;
        Answer answer;
        std::string message;
        MessageKind kind = MessageKind::Plain;
    } const cases[] = {
        {false, true, {}, ""},
        {true, true, QMessageBox::No, ""},
        {true, true, QMessageBox::Yes, deleted, MessageKind::Success},
        {true, false, {}, deleted, MessageKind::Success},
        {true, true, {}, kept, MessageKind::Warning},
    };
    for (const auto& c : cases) {
        set({{"DeleteSourceFileAfterEncryption", c.wanted},
             {"ConfirmDeleteSourceFileAfterEncryption", c.confirm}});
        writeInput("<b>in", 5000);
        if (c.message == kept)
            fs::create_hard_link(folder / "<b>in", folder / "twin");
        Answer given;
        start(Qt::Key_F5, "<b>in", "out");
        if (c.answer)
            onDialog<QMessageBox>([&](QMessageBox& box) {
                given = c.answer;
                EXPECT_EQ(box.text(),
                          "Are you sure you want to delete the input file after encryption?\nFile: '" +
                              path("<b>in") + "'\n");
                EXPECT_EQ(box.textFormat(), Qt::PlainText) << "a name is no markup";
                EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::No));
                box.button(*given)->click();
            });
        waitForEnd();
        EXPECT_EQ(given, c.answer);
        EXPECT_EQ(exists("<b>in"), c.message != deleted);
        EXPECT_EQ(text("inputMessage"), c.message);
        EXPECT_EQ(kind("inputMessage"), c.kind);
        fs::remove(folder / "out");
    }
}

} // namespace test
