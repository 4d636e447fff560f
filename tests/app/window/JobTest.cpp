#include "window/WindowHarness.h"

#include "app/window/JobDisplay.h"
#include "support/NewThreads.h"
#include "support/OwnMemory.h"

namespace test {

using JobTest = WindowTest;

/// No thread is to be had: for the job, and afterwards for the removal of its input.
TEST_F(JobTest, TellsThatItCannotStart)
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
        EXPECT_EQ(find<CMessageLine>("resultMessage").detail().toStdString(),
                  "in \u2192 " + (folder / "out"));
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
    EXPECT_EQ(find<CMessageLine>("inputMessage").kind(), MessageKind::Warning);
}

/// 499 times what the first report took are left: some seconds, or some minutes with the questions before it.
TEST_F(JobTest, TheTimeOfTheQuestionsSaysNothingOfTheSpeed)
{
    struct : desktop::ITaskbarProgress, desktop::INotifier
    {
        void show() override {}
        void hide() override {}
        void setValue(int) override {}
        void notify(const QString&, const QString&, const desktop::NotifierAction&) override {}
    } desktop;
    JobDisplay display(form(), desktop, desktop, nullptr);
    QElapsedTimer sinceStart;
    do {
        display.begin("name", 500 << 20);
        QTest::qSleep(200);
        sinceStart.start();
        display.showStarted();
        QTest::qSleep(2);
        display.showProgress(Operation::Encrypt, {JobPhase::Processing, 1 << 20, 500 << 20});
    } while (sinceStart.elapsed() >= 100);
    const QString shown = progress().message();
    EXPECT_TRUE(shown.contains("Remaining time: ") && !shown.contains("minutes")) << shown.toStdString();
}

/// At the cost that users have, to be in time, and with offers that end at once.
struct TimedTest : WindowTest
{
    TimedTest() : WindowTest(lookAtInput, tessaly::crypto::Argon2Cost{}, std::chrono::milliseconds(1)) {}
};

TEST_F(TimedTest, StopsWhileTheKeyIsMade)
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

TEST_F(TimedTest, EndsAnOfferByItself)
{
    writeInput("in");
    run(Qt::Key_F5, "in", "out");
    select(452);
    run(Qt::Key_F6, "out", "back");
    EXPECT_NE(text("inputMessage"), "");
    EXPECT_TRUE(waitFor([this] { return !link("inputMessage").isVisible(); }));
}

} // namespace test
