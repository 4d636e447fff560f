#include "window/WindowHarness.h"

#include "app/queue/CQueueList.h"
#include "app/queue/CQueueModel.h"
#include "app/widgets/CElidedLabel.h"
#include "support/OwnMemory.h"
#include "ui/algorithms/CSelectAlgFrame.h"
#include "ui/style/CLinkLabel.h"

#include <QMessageBox>
#include <QMimeData>
#include <QTreeView>
#include <gtest/gtest.h>

#include <filesystem>

using namespace thisapp;
using test::WindowHarness;
namespace fs = std::filesystem;

namespace {

/// More than one file in one go, as the user sees it.
class QueueTest : public test::WindowTest
{
protected:
    void give(const std::vector<const char*>& names)
    {
        QStringList paths;
        for (const char* name : names)
            paths += w.path(name);
        w.window->processCommandLine(paths);
    }
    void run(Qt::Key key, const QString& password = "secret")
    {
        w.answerPassword(password);
        QTest::keyClick(w.window.get(), key);
        ASSERT_TRUE(w.waitForEnd());
    }
    /// Anew, with a list of its own.
    void encrypt(const std::vector<const char*>& names)
    {
        QTest::keyClick(w.window.get(), Qt::Key_F8, Qt::ControlModifier);
        give(names);
        run(Qt::Key_F5);
    }
    QAbstractItemModel& list() { return *w.window->findChild<QTreeView*>("fileList")->model(); }
    /// "name: state" of each file.
    std::vector<std::string> states()
    {
        std::vector<std::string> lines;
        for (int row = 0; row < list().rowCount(); ++row)
            lines.push_back((list().index(row, CQueueModel::Name).data().toString() + ": " +
                             list().index(row, CQueueModel::State).data().toString())
                                .toStdString());
        return lines;
    }
};

using Lines = std::vector<std::string>;

TEST_F(QueueTest, ProcessesAllWithOnePasswordWhateverBecomesOfOne)
{
    static constexpr char Password[] = "Otters sing 2603 in March";
    for (const char* name : {"a", "b", "c"})
        w.writeInput(name, 70'000);
    folder().write("b.enc", "former");
    set({{"SealFiles", true}});
    give({"a", "b", "c", "a", "sub", "none"});
    EXPECT_EQ(states(), Lines({"a: Waiting", "b: Waiting", "c: Waiting"}));
    EXPECT_EQ(w.window->windowTitle(), "3 files - Quillet");
    EXPECT_EQ(w.form().queueList().findChild<CElidedLabel*>()->text(), "3 files, 205.1 KiB");
    run(Qt::Key_F5, Password);
    EXPECT_FALSE(test::isInMemory(Password)) << "there is no more to do";
    EXPECT_EQ(w.result(), "2 of 3 files encrypted, 1 skipped");
    EXPECT_EQ(w.kind("resultMessage"), MessageKind::Warning);
    EXPECT_EQ(w.text("queueMessage"), "Not found, and left out: sub, none");
    w.window->findChild<QTreeView*>("fileList")->setCurrentIndex(list().index(1, 0));
    EXPECT_EQ(w.text("queueMessage"),
              "Output file already exists! A 'not rewrite' option has been selected.");
    EXPECT_EQ(w.detail("resultMessage") + "/", folder() / "");
    EXPECT_EQ(states()[1],
              "b: Skipped: Output file already exists! A 'not rewrite' option has been selected.");
    EXPECT_EQ(w.progress().percent(), 100.0F);
    test::UrlRecorder opened;
    QTest::keyClick(w.window->findChild<CMessageLine*>("resultMessage")->findChild<CLinkLabel*>(),
                    Qt::Key_Space);
    EXPECT_EQ(opened.urls, QList<QUrl>{QUrl("file://" + w.path("").chopped(1))});

    // What is not done is done with the next try, and nothing else.
    fs::remove(folder() / "b.enc");
    run(Qt::Key_F5, Password);
    EXPECT_EQ(w.result(), "1 of 1 files encrypted");
    EXPECT_EQ(w.kind("resultMessage"), MessageKind::Success);
    EXPECT_EQ(states(), Lines({"a: Done", "b: Done", "c: Done"}));

    QTest::keyClick(w.window.get(), Qt::Key_F8, Qt::ControlModifier);
    EXPECT_EQ(list().rowCount(), 0);
    std::string damaged = test::readFile(folder() / "b.enc");
    damaged.back() ^= 1;
    folder().write("b.enc", damaged);
    give({"a.enc", "b.enc", "c.enc"});
    EXPECT_TRUE(w.button("buttonDecrypt").isDefault());
    run(Qt::Key_F6, Password);
    EXPECT_EQ(w.result(), "2 of 3 files decrypted, 1 failed");
    EXPECT_EQ(w.kind("resultMessage"), MessageKind::Error);
    EXPECT_EQ(states()[1], "b.enc: Failed: The file is damaged or has been changed (error: 5/4010). The "
                           "password and the algorithm are right. Try another copy of the file.");
    EXPECT_EQ(test::readFile(folder() / "a"), test::readFile(folder() / "a.dec"));
    EXPECT_EQ(test::readFile(folder() / "c"), test::readFile(folder() / "c.dec"));
}

/// With rewriting on, too, no file of the list and no output of another one is written over.
TEST_F(QueueTest, KeepsItsFilesFromEachOther)
{
    fs::create_directory(folder() / "x");
    fs::create_directory(folder() / "y");
    set({{"RewriteOutputFile", true}, {"UseDefaultOutputDir", true}, {"OutputDirPath", w.path("out")}});
    for (const char* name : {"x/a", "y/a", "b"})
        folder().write(name, name);
    encrypt({"x/a", "y/a", "b"});
    EXPECT_EQ(w.result(), "2 of 3 files encrypted, 1 skipped");
    EXPECT_EQ(states()[1], "a: Skipped: The output belongs to another file of the list.");

    set({{"RewriteOutputFile", true}});
    folder().write("b.enc", "precious");
    w.onDialog<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.text(), "Of 2 files, 1 seem to be encrypted already.");
        box.buttons().front()->click(); // encrypt again
    });
    encrypt({"b", "b.enc"});
    EXPECT_EQ(states()[0], "b: Skipped: The output belongs to another file of the list.");
    EXPECT_EQ(test::readFile(folder() / "b.enc"), "precious");
    EXPECT_TRUE(fs::exists(folder() / "b.dec"));

    fs::remove(folder() / "b.dec");
    w.onDialog<QMessageBox>([](QMessageBox& box) { box.buttons()[1]->click(); });
    encrypt({"y/a", "b.enc"});
    EXPECT_EQ(states(), Lines({"a: Done", "b.enc: Skipped: It seems to be encrypted already."}));
    w.onDialog<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.text(), "This file seems to be encrypted already");
        QTest::keyClick(&box, Qt::Key_Return); // no harm in that
    });
    give({"b.enc"});
    QTest::keyClick(w.window.get(), Qt::Key_F5);
    EXPECT_EQ(w.result(), "");
    EXPECT_FALSE(fs::exists(folder() / "b.dec"));
}

TEST_F(QueueTest, RewritesItsOwnOutputs)
{
    set({{"RewriteOutputFile", true}, {"UseOutputFileAutogenerator", false}}); // which is for the fields
    for (const char* name : {"a", "b"})
        w.writeInput(name, 10);
    encrypt({"a", "b"});
    const std::string former = test::readFile(folder() / "a.enc");
    run(Qt::Key_F5, "another");
    EXPECT_EQ(states(), Lines({"a: Done", "b: Done"}));
    EXPECT_NE(test::readFile(folder() / "a.enc"), former);
    EXPECT_EQ(w.progress().message(), "20 bytes in less than a second");
}

TEST_F(QueueTest, TakesAPathAsTheSystemDoes)
{
    fs::create_directories(folder() / "A/sub");
    fs::create_directory(folder() / "B");
    fs::create_directory_symlink("../A/sub", folder() / "B/link");
    for (const char* name : {"A/x", "B/x", "o"})
        w.writeInput(name, 10);
    encrypt({"B/link/../x", "o", "A/x"});
    EXPECT_EQ(states(), Lines({"x: Done", "o: Done"}));
    EXPECT_EQ(w.detail("resultMessage"), "") << "there is more than one folder";
    EXPECT_TRUE(fs::exists(folder() / "A/x.enc") && !fs::exists(folder() / "B/x.enc"));
}

TEST_F(QueueTest, TellsWhatIsLeftOutOfARequest)
{
    fs::create_directory(folder() / "d");
    for (const char* name : {"a", "b"})
        w.writeInput(name, 10);
    w.answerPassword("secret");
    w.window->processCommandLine(
        {"-encrypt", "-start", "-ofile", w.path("x"), w.path("a"), w.path("b"), w.path("d")});
    ASSERT_TRUE(w.waitForEnd());
    EXPECT_EQ(w.output().text(), "") << "a list has no such field";
    EXPECT_EQ(w.result(), "2 of 2 files encrypted");
    EXPECT_EQ(w.text("queueMessage"),
              "Folders and devices are left out: only files can be encrypted or decrypted.");
    QTest::keyClick(w.window.get(), Qt::Key_F8, Qt::ControlModifier);
    w.window->processCommandLine({"-encrypt", "-start", w.path("d"), w.path("")}); // opens no dialog
    EXPECT_EQ(w.text("inputMessage"),
              "Folders and devices are left out: only files can be encrypted or decrypted.");
}

TEST_F(QueueTest, StopsAsAWhole)
{
    static constexpr char Password[] = "Beavers yodel 0704 in May";
    set({{"RewriteOutputFile", true}});
    for (const char* name : {"a", "b", "c"})
        w.writeInput(name, 10);
    folder().write("b.enc", "former");
    fs::resize_file(folder() / "b", 4LL << 30);
    ASSERT_TRUE(w.form().algFrame().setSelection({1, 601}));
    give({"a", "b", "c"});
    w.answerPassword(Password);
    QTest::keyClick(w.window.get(), Qt::Key_F5);
    ASSERT_TRUE(QTest::qWaitFor([this] { return w.progress().percent() > 0.01F; }, // the engine is at it
                                WindowHarness::JobTimeoutMs));
    EXPECT_TRUE(w.window->windowTitle().contains("2 of 3 - b - "));
    EXPECT_FALSE(w.button("buttonClearList").isEnabled());
    QTest::keyClick(w.window.get(), Qt::Key_F6);
    EXPECT_EQ(w.progress().notice(), "Encryption/Decryption already running.");
    auto& view = *w.window->findChild<QTreeView*>("fileList");
    view.setCurrentIndex(list().index(2, 0));
    QTest::keyClick(&view, Qt::Key_Delete);
    EXPECT_EQ(states().size(), 3U);
    EXPECT_TRUE(test::isInMemory(Password)) << "for the next file";
    QTest::keyClick(w.window.get(), Qt::Key_F8);
    EXPECT_FALSE(test::isInMemory(Password));
    ASSERT_TRUE(w.waitForEnd());
    EXPECT_EQ(w.result(), "Stopped: 1 of 3 files encrypted, 2 skipped");
    EXPECT_EQ(w.progress().message(), "") << "what was done tells no speed";
    EXPECT_EQ(states(), Lines({"a: Done", "b: Skipped: Stopped. Output file has been deleted.",
                               "c: Skipped: Stopped"}));
    EXPECT_FALSE(fs::exists(folder() / "b.enc"));

    // Another command is about all of them. Stopped before anything has begun, it ends at once.
    w.answerPassword(Password);
    QTest::keyClick(w.window.get(), Qt::Key_F6);
    QTest::keyClick(w.window.get(), Qt::Key_F8);
    EXPECT_FALSE(w.isRunning());
    EXPECT_EQ(w.result(), "Stopped: 0 of 3 files decrypted, 3 skipped");
    w.button("buttonClearList").click();
    EXPECT_FALSE(w.form().isQueueShown());
}

TEST_F(QueueTest, DeletesInputsAfterOneQuestion)
{
    const std::vector<const char*> names = {"a", "b", "<b>", "c", "d", "e", "f", "g"};
    for (const bool agreed : {false, true}) {
        set({{"DeleteSourceFileAfterEncryption", true}});
        for (const char* name : names)
            w.writeInput(name, 10);
        fs::remove(folder() / "link");
        fs::create_hard_link(folder() / "c", folder() / "link");
        folder().write("d.enc", "former");
        give(names);
        w.answerPassword("secret");
        QTest::keyClick(w.window.get(), Qt::Key_F5);
        w.onDialog<QMessageBox>([&](QMessageBox& box) {
            QStringList lines{"Are you sure you want to delete the input files after encryption?", ""};
            for (const char* name : {"a", "b", "<b>", "e", "f"})
                lines += w.path(name);
            EXPECT_EQ(box.text(), lines.join('\n') + "\nand 1 more");
            EXPECT_EQ(box.textFormat(), Qt::PlainText) << "a name is no markup";
            EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::No));
            box.button(agreed ? QMessageBox::Yes : QMessageBox::No)->click();
        });
        ASSERT_TRUE(w.waitForEnd());
        for (const char* name : {"a", "b", "<b>", "e", "f", "g"})
            EXPECT_EQ(fs::exists(folder() / name), !agreed);
        EXPECT_TRUE(fs::exists(folder() / "c") && fs::exists(folder() / "d"));
        EXPECT_EQ(states()[3], "c: Done: The input file has been kept: it has another name (hard link).");
        EXPECT_EQ(list().index(2, 0).data(Qt::ToolTipRole).toString(), "<p>" + w.path("&lt;b&gt;") + "</p>");
        EXPECT_EQ(w.text("queueMessage"),
                  "Input files deleted after their encryption, according to your options: " +
                      std::string(agreed ? "6" : "0") + ". Kept: 1, see the list.");
        for (const char* name : {"a", "b", "<b>", "c", "e", "f", "g"})
            EXPECT_TRUE(fs::remove(folder() / (name + std::string(".enc"))));
    }
}

TEST_F(QueueTest, GathersFilesUntilItHasRun)
{
    for (const char* name : {"a", "b", "c"})
        w.writeInput(name, 10);
    fs::create_directory(folder() / "sub");
    const auto drop = [this](const std::vector<const char*>& names) {
        QMimeData files;
        QList<QUrl> urls;
        for (const char* name : names)
            urls += QUrl::fromLocalFile(w.path(name));
        files.setUrls(urls);
        QDragEnterEvent enter({}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&w.form(), &enter);
        QDropEvent event({}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&w.form(), &event);
    };
    drop({"a", "sub"});
    EXPECT_EQ(w.input().text(), w.path("a")) << "one file is as ever";
    EXPECT_EQ(w.text("inputMessage"),
              "Folders and devices are left out: only files can be encrypted or decrypted.");
    drop({"a", "b"});
    EXPECT_EQ(w.input().text(), "");
    drop({"c"});
    EXPECT_EQ(states().size(), 3U);
    auto& view = *w.window->findChild<QTreeView*>("fileList");
    view.setCurrentIndex(list().index(2, 0));
    QTest::keyClick(&view, Qt::Key_Delete);
    EXPECT_EQ(states().size(), 2U);
    drop({"c"});
    view.selectAll();
    view.selectionModel()->select(list().index(1, 0),
                                  QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
    QTest::keyClick(&view, Qt::Key_Delete);
    EXPECT_EQ(w.input().text(), w.path("b")) << "one that is left is as ever";
    drop({"a", "b"});
    run(Qt::Key_F5);
    EXPECT_EQ(w.result(), "2 of 2 files encrypted");
    drop({"c"});
    EXPECT_EQ(w.input().text(), w.path("c")) << "what has been done is not added to";
    EXPECT_FALSE(w.form().isQueueShown());
}

} // namespace
