#include "window/WindowHarness.h"

#include "common/path/PathText.h"
#include "support/DataRows.h"

namespace test {

using DropTest = WindowTest;

TEST_F(DropTest, LightsTheHintAndTakesNoText)
{
    const auto lit = [this, idle = hint().grab().toImage()] { return hint().grab().toImage() != idle; };
    QMimeData elsewhere;
    elsewhere.setUrls({QUrl("https://example.org/x")});
    QDragEnterEvent enter({}, Qt::CopyAction, &elsewhere, Qt::LeftButton, Qt::NoModifier);
    QDragLeaveEvent leave;
    for (QEvent* event : std::initializer_list<QEvent*>{&enter, &leave}) {
        QApplication::sendEvent(&form(), event);
        EXPECT_EQ(lit(), event == &enter);
    }
    EXPECT_TRUE(drop(form(), elsewhere));
    EXPECT_FALSE(lit());
    QMimeData words;
    words.setText("words");
    for (QWidget* target : std::initializer_list<QWidget*>{&form(), &input(), &output()})
        EXPECT_FALSE(drop(*target, words));
}

TEST_F(DropTest, TakesDroppedFiles)
{
    writeInput("in");
    fs::create_directory(folder / "sub");
    folder.write("n\xff", "");
    folder.write("in ", "");
    for (const auto& row : dataRows("drops.txt")) {
        SCOPED_TRACE(row[0]);
        QMimeData files;
        files.setUrls(QUrl::fromStringList(
            QString::fromStdString(row[0]).replace("@", path("").chopped(1)).split(' ')));
        const QString name = pathText(QByteArray::fromPercentEncoding(row[1].c_str()).toStdString());
        const QString whole = name.isEmpty() ? QString() : path("") + name;
        const bool usable = row[2] == "taken";
        for (QWidget* target : std::initializer_list<QWidget*>{&form(), &input()}) {
            clear();
            EXPECT_TRUE(drop(*target, files));
            EXPECT_EQ(input().text(), whole);
            EXPECT_EQ(output().text(), usable ? whole + ".enc" : "");
            EXPECT_EQ(text("inputMessage"), row[3]);
            EXPECT_EQ(hint().accessibleName(), usable ? name : "Drop files here");
        }
        clear();
        EXPECT_TRUE(drop(output(), files));
        EXPECT_EQ(input().text(), "");
        EXPECT_EQ(output().text(), whole);
        EXPECT_EQ(text("outputMessage"), name.isEmpty() ? row[3]
                                         : files.urls().size() > 1
                                             ? "Only one of the dropped files was taken."
                                             : "");
    }
}

/// A program that hands files over as a move deletes them afterwards.
TEST_F(DropTest, LeavesDraggedFilesWithTheirOwner)
{
    QMimeData files;
    files.setUrls({QUrl("file:///x")});
    for (QWidget* target : std::initializer_list<QWidget*>{&form(), &input()})
        for (const auto possible : {Qt::MoveAction | Qt::CopyAction, Qt::DropActions(Qt::MoveAction)}) {
            QDragEnterEvent enter({}, possible, &files, Qt::LeftButton, Qt::ShiftModifier);
            QDragMoveEvent move({}, possible, &files, Qt::LeftButton, Qt::ShiftModifier);
            QDropEvent drop({}, possible, &files, Qt::LeftButton, Qt::ShiftModifier);
            for (QEvent* event : std::initializer_list<QEvent*>{&enter, &move, &drop})
                QApplication::sendEvent(target, event);
            EXPECT_TRUE(enter.isAccepted());
            EXPECT_EQ(move.isAccepted(), possible.testFlag(Qt::CopyAction));
            EXPECT_TRUE(!move.isAccepted() || move.dropAction() == Qt::CopyAction);
            EXPECT_NE(drop.dropAction(), Qt::MoveAction);
        }
}

} // namespace test
