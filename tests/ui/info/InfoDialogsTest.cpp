#include "support/TempFolder.h"
#include "ui/Widgets.h"
#include "ui/info/CAboutDialog.h"
#include "ui/info/CTextViewDialog.h"
#include "ui/info/CkeyboardShortcutInfoDialog.h"
#include "ui/info/TextTail.h"

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
    EXPECT_EQ(shownShortcuts(), "This is a list of keyboard shortcuts in Quillet.\n\n"
                                "'F5' - Start encryption\n"
                                "'Ctrl+F8' (Cmd+F8) - Clear entered data\n");
    const Capitals translator;
    QApplication::setApplicationName("A <b> & c");
    const QString translated = shownShortcuts();
    QApplication::setApplicationName("Quillet");
    EXPECT_TRUE(translated.startsWith("THIS IS A LIST OF KEYBOARD SHORTCUTS IN A <b> & c.")) << translated;
    EXPECT_TRUE(translated.contains("'Ctrl+F8' (Cmd+F8) - CLEAR ENTERED DATA\n"));
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
    const std::tuple<const char*, int, const char*> rows[] = {
        {"", 10, ""},
        {"one\ntwo\n", 8, "one\ntwo\n"},
        {"one\ntwo\n", 7, "two\n"},
        {"o\xc3\xbc\nt\xc3\xbc\n", 6, "t\xc3\xbc\n"},
        {"one long line", 4, "line"},
    };
    const test::TempFolder folder;
    for (const auto& [content, most, tail] : rows) {
        folder.write("log", content);
        EXPECT_EQ(thisapp::readTextTail((folder / "log").c_str(), most).text, tail);
    }
    EXPECT_FALSE(thisapp::readTextTail((folder / "missing").c_str()).ok);
}

} // namespace
