#include "ui/Widgets.h"
#include "ui/info/CAboutDialog.h"
#include "ui/info/CTextViewDialog.h"
#include "ui/info/CkeyboardShortcutInfoDialog.h"
#include "ui/info/TextTail.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextEdit>

namespace {

QString shownShortcuts()
{
    CkeyboardShortcutInfoDialog dialog;
    dialog.setShortcuts(
        {{Qt::Key_F5, "Start encryption"}, {thisapp::ctrl(Qt::Key_F8), "Clear entered data"}});
    dialog.show();
    return dialog.findChild<QTextEdit*>()->toPlainText();
}

TEST(KeyboardShortcutDialog, ListsTheShortcutsInTheCurrentLanguage)
{
    EXPECT_EQ(shownShortcuts().toStdString(), "This is a list of keyboard shortcuts in Quillet.\n\n"
                                              "'F5' - Start encryption\n"
                                              "'Ctrl+F8' (Cmd+F8) - Clear entered data\n");
    Capitals translator;
    QApplication::installTranslator(&translator);
    QApplication::setApplicationName("A <b> & c");
    const QString translated = shownShortcuts();
    QApplication::setApplicationName("Quillet");
    QApplication::removeTranslator(&translator);
    EXPECT_TRUE(translated.startsWith("THIS IS A LIST OF KEYBOARD SHORTCUTS IN A <b> & c."))
        << qPrintable(translated);
    EXPECT_TRUE(translated.contains("'Ctrl+F8' (Cmd+F8) - CLEAR ENTERED DATA\n"));
}

TEST(AboutDialog, ShowsTheVersionsAndClosesOnEnter)
{
    CAboutDialog dialog;
    dialog.show();
    EXPECT_EQ(dialog.windowTitle(), "About Quillet");
    EXPECT_EQ(child<QLabel>(dialog, "labelName").text(), "Quillet");
    EXPECT_FALSE(child(dialog, "labelIcon").isVisible()) << "there is none";
    EXPECT_EQ(child<QLabel>(dialog, "labelVersion").text(), "Version " QUILLET_VERSION);
    EXPECT_EQ(child<QLabel>(dialog, "labelQt").text(), qVersion());
    EXPECT_TRUE(child<QLabel>(dialog, "labelCryptoPP").text().startsWith("8."));
    QTest::keyClick(&dialog, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
}

TEST(TextViewDialog, RefreshesAndShowsTheEnd)
{
    int reads = 0;
    CTextViewDialog dialog;
    EXPECT_TRUE(child(dialog, "buttonRefresh").isHidden()) << "without a source";
    dialog.setSource([&reads] { return QString("line\n").repeated(500) + QString::number(++reads); });
    open(dialog);
    const auto& text = child<QPlainTextEdit>(dialog, "text");
    EXPECT_TRUE(text.toPlainText().endsWith("\n1"));
    press(Qt::Key_A);
    press(Qt::Key_F5);
    EXPECT_TRUE(text.toPlainText().endsWith("\n2"));
    EXPECT_TRUE(text.textCursor().atEnd());
    EXPECT_EQ(text.verticalScrollBar()->value(), text.verticalScrollBar()->maximum());
    press(Qt::Key_R, Qt::AltModifier);
    EXPECT_TRUE(text.toPlainText().endsWith("\n3"));
    press(Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
}

TEST(TextTail, KeepsOnlyWholeLinesOfTheEnd)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("log");
    const auto tail = [&](const QByteArray& content, qint64 maxBytes) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        return thisapp::readTextTail(path, maxBytes).text;
    };
    EXPECT_EQ(tail("", 10), "");
    EXPECT_EQ(tail("one\ntwo\n", 8), "one\ntwo\n");
    EXPECT_EQ(tail("one\ntwo\n", 7), "two\n");
    EXPECT_EQ(tail("o\xc3\xbc\nt\xc3\xbc\n", 6), QString::fromUtf8("t\xc3\xbc\n"));
    EXPECT_EQ(tail("one long line", 4), "line");
    EXPECT_FALSE(thisapp::readTextTail(folder.filePath("missing")).ok);
}

} // namespace
