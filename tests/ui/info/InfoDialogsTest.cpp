#include "support/TempFolder.h"
#include "ui/Widgets.h"
#include "ui/info/CAboutDialog.h"
#include "ui/info/CTextViewDialog.h"
#include "ui/info/CkeyboardShortcutInfoDialog.h"
#include "ui/info/TextTail.h"

namespace {

TEST(KeyboardShortcutDialog, ListsTheShortcutsInTheCurrentLanguage)
{
    const Capitals translator;
    QApplication::setApplicationName("A <b> & c");
    CkeyboardShortcutInfoDialog dialog;
    dialog.setShortcuts(
        {{Qt::Key_F5, "Start encryption"}, {thisapp::ctrl(Qt::Key_F8), "Clear entered data"}});
    dialog.show();
    EXPECT_EQ(dialog.findChild<QTextEdit*>()->toPlainText(),
              "THIS IS A LIST OF KEYBOARD SHORTCUTS IN A <b> & c.\n\n"
              "'F5' - START ENCRYPTION\n'Ctrl+F8' (Cmd+F8) - CLEAR ENTERED DATA\n");
    QApplication::setApplicationName("Quillet");
}

TEST(AboutDialog, ShowsTheVersionsAndClosesOnEnter)
{
    CAboutDialog dialog;
    open(dialog);
    EXPECT_EQ(dialog.windowTitle(), "About Quillet");
    EXPECT_EQ(text(dialog, "labelName"), "Quillet");
    EXPECT_FALSE(child(dialog, "labelIcon").isVisible()) << "there is none";
    EXPECT_EQ(text(dialog, "labelVersion"), "Version " QUILLET_VERSION);
    EXPECT_EQ(text(dialog, "labelQt"), qVersion());
    EXPECT_TRUE(text(dialog, "labelCryptoPP").startsWith("8."));
    press("Return");
    EXPECT_FALSE(dialog.isVisible());
}

TEST(TextViewDialog, RefreshesAndShowsTheEnd)
{
    int reads = 0;
    CTextViewDialog dialog;
    EXPECT_TRUE(child(dialog, "buttonRefresh").isHidden()) << "without a source";
    dialog.setSource([&reads] { return QString("line\n").repeated(500) + QString::number(++reads); });
    open(dialog);
    const auto& pane = child<QPlainTextEdit>(dialog, "text");
    for (const auto& [keys, end] : {std::pair("A", "\n1"), {"F5", "\n2"}, {"Alt+R", "\n3"}}) {
        press(keys);
        EXPECT_TRUE(pane.toPlainText().endsWith(end));
        EXPECT_TRUE(pane.textCursor().atEnd());
        EXPECT_EQ(pane.verticalScrollBar()->value(), pane.verticalScrollBar()->maximum());
    }
    press("Esc");
    EXPECT_FALSE(dialog.isVisible());
}

TEST(TextTail, KeepsOnlyWholeLinesOfTheEnd)
{
    const test::TempFolder folder;
    const auto tail = [&folder](const char* content, int most) {
        folder.write("log", content);
        return thisapp::readTextTail((folder / "log").c_str(), most).text;
    };
    EXPECT_EQ(tail("", 10), "");
    EXPECT_EQ(tail("one\ntwo\n", 8), "one\ntwo\n");
    EXPECT_EQ(tail("one\ntwo\n", 7), "two\n");
    EXPECT_EQ(tail("o\u00fc\nt\u00fc\n", 6), "t\u00fc\n");
    EXPECT_EQ(tail("one long line", 4), "line");
    EXPECT_FALSE(thisapp::readTextTail((folder / "missing").c_str()).ok);
}

} // namespace
