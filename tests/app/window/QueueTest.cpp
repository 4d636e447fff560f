#include "window/WindowHarness.h"

#include "app/queue/CQueueList.h"
#include "app/queue/CQueueModel.h"
#include "support/OwnMemory.h"

namespace test {

using Names = std::vector<const char*>;

/// More than one file in one go, as the user sees it.
class QueueTest : public WindowTest
{
protected:
    void give(const Names& names)
    {
        QStringList paths;
        for (const char* name : names)
            paths += path(name);
        window->processCommandLine(paths);
    }
    void startAll(Qt::Key key, const QString& password = "secret")
    {
        answerPassword(password);
        press(key);
    }
    std::string runAll(Qt::Key key, const QString& password = "secret")
    {
        startAll(key, password);
        return waitForEnd();
    }
    /// Anew, with a list of its own.
    std::string encryptAll(const Names& names)
    {
        clear();
        give(names);
        return runAll(Qt::Key_F5);
    }
    /// Answers the question to come, which has to be this one. Without a button by the return key.
    void answer(const QString& question, int button = -1)
    {
        onDialog<QMessageBox>([=](QMessageBox& box) {
            EXPECT_EQ(box.text(), question);
            button < 0 ? QTest::keyClick(&box, Qt::Key_Return) : box.buttons()[button]->click();
        });
    }
    void dropAll(const Names& names)
    {
        QList<QUrl> urls;
        for (const char* name : names)
            urls += QUrl::fromLocalFile(path(name));
        QMimeData files;
        files.setUrls(urls);
        drop(form(), files);
    }
    QTreeView& view() { return find<QTreeView>("fileList"); }
    QModelIndex cell(int row, int column = 0) { return view().model()->index(row, column); }
    void removeRow(int row)
    {
        view().setCurrentIndex(cell(row));
        QTest::keyClick(&view(), Qt::Key_Delete);
    }
    /// "name: state" of each file.
    Lines states()
    {
        Lines lines;
        for (int row = 0; row < view().model()->rowCount(); ++row)
            lines.push_back((cell(row, CQueueModel::Name).data().toString() + ": " +
                             cell(row, CQueueModel::State).data().toString())
                                .toStdString());
        return lines;
    }
};

constexpr char LeftOut[] = "Folders and devices are left out: only files can be encrypted or decrypted.";

TEST_F(QueueTest, ProcessesAllWithOnePasswordWhateverBecomesOfOne)
{
    static constexpr char Password[] = "Otters sing 2603 in March";
    const std::string inTheWay = "Output file already exists! A 'not rewrite' option has been selected.";
    for (const char* name : {"a", "b", "c"})
        writeInput(name, 70'000);
    folder.write("b.enc", "former");
    set({{"SealFiles", true}});
    give({"a", "b", "c", "a", "sub", "none"});
    EXPECT_EQ(states(), Lines({"a: Waiting", "b: Waiting", "c: Waiting"}));
    EXPECT_EQ(window->windowTitle(), "3 files - Quillet");
    EXPECT_EQ(child<CElidedLabel>(form().queueList()).text(), "3 files, 205.1 KiB");
    runAll(Qt::Key_F5, Password);
    EXPECT_FALSE(isInMemory(Password)) << "there is no more to do";
    EXPECT_EQ(result(), "2 of 3 files encrypted, 1 skipped");
    EXPECT_EQ(kind("resultMessage"), MessageKind::Warning);
    EXPECT_EQ(text("queueMessage"), "Not found, and left out: sub, none");
    view().setCurrentIndex(cell(1));
    EXPECT_EQ(text("queueMessage"), inTheWay);
    EXPECT_EQ(detail("resultMessage") + "/", folder / "");
    EXPECT_EQ(states()[1], "b: Skipped: " + inTheWay);
    EXPECT_EQ(progress().percent(), 100.0F);
    UrlRecorder opened;
    QTest::keyClick(&link("resultMessage"), Qt::Key_Space);
    EXPECT_EQ(opened.urls, QList<QUrl>{QUrl("file://" + path("").chopped(1))});

    // What is not done is done with the next try, and nothing else.
    fs::remove(folder / "b.enc");
    EXPECT_EQ(runAll(Qt::Key_F5, Password), "1 of 1 files encrypted");
    EXPECT_EQ(kind("resultMessage"), MessageKind::Success);
    EXPECT_EQ(states(), Lines({"a: Done", "b: Done", "c: Done"}));

    clear();
    EXPECT_EQ(states(), Lines());
    damage("b.enc");
    give({"a.enc", "b.enc", "c.enc"});
    EXPECT_TRUE(button("buttonDecrypt").isDefault());
    EXPECT_EQ(runAll(Qt::Key_F6, Password), "2 of 3 files decrypted, 1 failed");
    EXPECT_EQ(kind("resultMessage"), MessageKind::Error);
    EXPECT_EQ(states()[1], "b.enc: Failed: The file is damaged or has been changed (error: 5/4010). The "
                           "password and the algorithm are right. Try another copy of the file.");
    EXPECT_EQ(read("a") + read("c"), read("a.dec") + read("c.dec"));
}

/// With rewriting on, too, no file of the list and no output of another one is written over.
TEST_F(QueueTest, KeepsItsFilesFromEachOther)
{
    makeFolder("x");
    makeFolder("y");
    set({{"RewriteOutputFile", true}, {"UseDefaultOutputDir", true}, {"OutputDirPath", path("out")}});
    for (const char* name : {"x/a", "y/a", "b"})
        folder.write(name, name);
    EXPECT_EQ(encryptAll({"x/a", "y/a", "b"}), "2 of 3 files encrypted, 1 skipped");
    EXPECT_EQ(states()[1], "a: Skipped: The output belongs to another file of the list.");

    set({{"RewriteOutputFile", true}});
    folder.write("b.enc", "precious");
    answer("Of 2 files, 1 seem to be encrypted already.", 0); // encrypt again
    encryptAll({"b", "b.enc"});
    EXPECT_EQ(states()[0], "b: Skipped: The output belongs to another file of the list.");
    EXPECT_EQ(read("b.enc"), "precious");
    EXPECT_TRUE(fs::remove(folder / "b.dec"));

    answer("Of 2 files, 1 seem to be encrypted already.", 1);
    encryptAll({"y/a", "b.enc"});
    EXPECT_EQ(states(), Lines({"a: Done", "b.enc: Skipped: It seems to be encrypted already."}));
    answer("This file seems to be encrypted already"); // no harm in that
    give({"b.enc"});
    press(Qt::Key_F5);
    EXPECT_EQ(result(), "");
    EXPECT_FALSE(exists("b.dec"));
}

TEST_F(QueueTest, RewritesItsOwnOutputs)
{
    set({{"RewriteOutputFile", true}, {"UseOutputFileAutogenerator", false}}); // which is for the fields
    for (const char* name : {"a", "b"})
        writeInput(name);
    encryptAll({"a", "b"});
    const std::string former = read("a.enc");
    runAll(Qt::Key_F5, "another");
    EXPECT_EQ(states(), Lines({"a: Done", "b: Done"}));
    EXPECT_NE(read("a.enc"), former);
    EXPECT_EQ(progress().message(), "20 bytes in less than a second");
}

TEST_F(QueueTest, TakesAPathAsTheSystemDoes)
{
    makeFolder("A/sub");
    makeFolder("B");
    fs::create_directory_symlink("../A/sub", folder / "B/link");
    for (const char* name : {"A/x", "B/x", "o"})
        writeInput(name);
    encryptAll({"B/link/../x", "o", "A/x"});
    EXPECT_EQ(states(), Lines({"x: Done", "o: Done"}));
    EXPECT_EQ(detail("resultMessage"), "") << "there is more than one folder";
    EXPECT_TRUE(exists("A/x.enc") && !exists("B/x.enc"));

    // The folder that is opened is one in which something was made.
    fs::remove(folder / "o.enc");
    EXPECT_EQ(encryptAll({"A/x", "o"}), "1 of 2 files encrypted, 1 skipped");
    const UrlRecorder opened;
    QTest::keyClick(&link("resultMessage"), Qt::Key_Space);
    EXPECT_EQ(opened.urls, QList<QUrl>{QUrl("file://" + path("").chopped(1))});
}

TEST_F(QueueTest, TellsWhatIsLeftOutOfARequest)
{
    makeFolder("d");
    for (const char* name : {"a", "b"})
        writeInput(name);
    answerPassword("secret");
    window->processCommandLine({"-encrypt", "-start", "-ofile", path("x"), path("a"), path("b"), path("d")});
    waitForEnd();
    EXPECT_EQ(output().text(), "") << "a list has no such field";
    EXPECT_EQ(result(), "2 of 2 files encrypted");
    EXPECT_EQ(text("queueMessage"), LeftOut);
    clear();
    window->processCommandLine({"-encrypt", "-start", path("d"), path("")}); // opens no dialog
    EXPECT_EQ(text("inputMessage"), LeftOut);
}

TEST_F(QueueTest, StopsAsAWhole)
{
    static constexpr char Password[] = "Beavers yodel 0704 in May";
    set({{"RewriteOutputFile", true}});
    for (const char* name : {"a", "b", "c"})
        writeInput(name);
    folder.write("b.enc", "former");
    fs::resize_file(folder / "b", 4LL << 30);
    select(SlowAlgorithm);
    give({"a", "b", "c"});
    startAll(Qt::Key_F5, Password);
    ASSERT_TRUE(waitFor([this] { return progress().percent() > 0.01F; })) << "the engine is at it";
    EXPECT_TRUE(window->windowTitle().contains("2 of 3 - b - "));
    EXPECT_FALSE(button("buttonClearList").isEnabled());
    press(Qt::Key_F6);
    EXPECT_EQ(progress().notice(), "Encryption/Decryption already running.");
    removeRow(2);
    EXPECT_EQ(states().size(), 3U);
    EXPECT_TRUE(isInMemory(Password)) << "for the next file";
    press(Qt::Key_F8);
    EXPECT_FALSE(isInMemory(Password));
    EXPECT_EQ(waitForEnd(), "Stopped: 1 of 3 files encrypted, 2 skipped");
    EXPECT_EQ(progress().message(), "") << "what was done tells no speed";
    EXPECT_EQ(states(), Lines({"a: Done", "b: Skipped: Stopped. Output file has been deleted.",
                               "c: Skipped: Stopped"}));
    EXPECT_FALSE(exists("b.enc"));

    // Another command is about all of them. Stopped before anything has begun, it ends at once.
    startAll(Qt::Key_F6, Password);
    press(Qt::Key_F8);
    EXPECT_FALSE(isRunning());
    EXPECT_EQ(result(), "Stopped: 0 of 3 files decrypted, 3 skipped");
    button("buttonClearList").click();
    EXPECT_FALSE(form().isQueueShown());
}

TEST_F(QueueTest, DeletesInputsAfterOneQuestion)
{
    const Names deleted = {"a", "b", "<b>", "e", "f", "g"};
    for (const bool agreed : {false, true}) {
        set({{"DeleteSourceFileAfterEncryption", true}});
        for (const char* name : {"a", "b", "<b>", "c", "d", "e", "f", "g"}) {
            writeInput(name);
            fs::remove(folder / (name + std::string(".enc")));
        }
        fs::remove(folder / "link");
        fs::create_hard_link(folder / "c", folder / "link");
        folder.write("d.enc", "former");
        give({"a", "b", "<b>", "c", "d", "e", "f", "g"});
        startAll(Qt::Key_F5);
        onDialog<QMessageBox>([&](QMessageBox& box) {
            QStringList lines{"Are you sure you want to delete the input files after encryption?", ""};
            for (const char* name : {"a", "b", "<b>", "e", "f"})
                lines += path(name);
            EXPECT_EQ(box.text(), lines.join('\n') + "\nand 1 more");
            EXPECT_EQ(box.textFormat(), Qt::PlainText) << "a name is no markup";
            EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::No));
            box.button(agreed ? QMessageBox::Yes : QMessageBox::No)->click();
        });
        waitForEnd();
        for (const char* name : deleted)
            EXPECT_EQ(exists(name), !agreed);
        EXPECT_TRUE(exists("c") && exists("d"));
        EXPECT_EQ(states()[3], "c: Done: The input file has been kept: it has another name (hard link).");
        EXPECT_EQ(cell(2).data(Qt::ToolTipRole).toString(), "<p>" + path("&lt;b&gt;") + "</p>");
        EXPECT_EQ(text("queueMessage"),
                  "Input files deleted after their encryption, according to your options: " +
                      std::string(agreed ? "6" : "0") + ". Kept: 1, see the list.");
    }
}

TEST_F(QueueTest, GathersFilesUntilItHasRun)
{
    for (const char* name : {"a", "b", "c"})
        writeInput(name);
    makeFolder("sub");
    dropAll({"a", "sub"});
    EXPECT_EQ(input().text(), path("a")) << "one file is as ever";
    EXPECT_EQ(text("inputMessage"), LeftOut);
    dropAll({"a", "b"});
    EXPECT_EQ(input().text(), "");
    dropAll({"c"});
    EXPECT_EQ(states().size(), 3U);
    removeRow(2);
    EXPECT_EQ(states().size(), 2U);
    dropAll({"c"});
    view().selectAll();
    view().selectionModel()->select(cell(1), QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
    QTest::keyClick(&view(), Qt::Key_Delete);
    EXPECT_EQ(input().text(), path("b")) << "one that is left is as ever";
    dropAll({"a", "b"});
    EXPECT_EQ(runAll(Qt::Key_F5), "2 of 2 files encrypted");
    dropAll({"c"});
    EXPECT_EQ(input().text(), path("c")) << "what has been done is not added to";
    EXPECT_FALSE(form().isQueueShown());
}

} // namespace test
