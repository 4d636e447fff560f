#include "window/WindowHarness.h"

#include "app/widgets/CDropHint.h"

#include <QMimeData>
#include <gtest/gtest.h>

#include <filesystem>
#include <tuple>

using namespace thisapp;
namespace fs = std::filesystem;

namespace {

using DropTest = test::WindowTest;

TEST_F(DropTest, TakesDroppedFiles)
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
TEST_F(DropTest, LeavesDraggedFilesWithTheirOwner)
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

} // namespace
