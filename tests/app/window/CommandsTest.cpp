#include "window/WindowHarness.h"

#include "app/widgets/CDropHint.h"
#include "app/window/Commands.h"
#include "ui/algorithms/CSelectAlgFrame.h"

#include <QComboBox>
#include <QMenu>
#include <QMenuBar>
#include <QTextEdit>
#include <QToolBar>
#include <gtest/gtest.h>

using namespace thisapp;
using test::WindowHarness;

namespace {

/// "" for none.
std::string idFor(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    const Command* command = commandFor(key, modifiers);
    return command != nullptr ? command->id : "";
}

TEST(CommandsTest, HaveTheirKeys)
{
    const Qt::KeyboardModifiers none, ctrl = Qt::ControlModifier, alt = Qt::AltModifier,
                                      shift = Qt::ShiftModifier;
    const std::tuple<Qt::Key, Qt::KeyboardModifiers, const char*> rows[] = {
        {Qt::Key_F5, none, "encrypt"}, {Qt::Key_F5, shift, "encrypt"},
        {Qt::Key_F5, alt, ""},         {Qt::Key_F5, ctrl, ""},
        {Qt::Key_F6, none, "decrypt"}, {Qt::Key_F6, ctrl, ""},
        {Qt::Key_F8, none, "stop"},    {Qt::Key_F8, ctrl, "clear"},
        {Qt::Key_F8, ctrl | alt, ""},  {Qt::Key_F9, ctrl, "open-input-folder"},
        {Qt::Key_F9, none, ""},        {Qt::Key_F10, ctrl | shift, "open-output-folder"},
        {Qt::Key_O, ctrl, "add-file"}, {Qt::Key_N, ctrl, "add-file"},
        {Qt::Key_N, none, ""},         {Qt::Key_F7, none, ""},
    };
    for (const auto& [key, modifiers, id] : rows)
        EXPECT_EQ(idFor(key, modifiers), id) << key << ' ' << modifiers;
}

class WindowCommandsTest : public ::testing::Test
{
protected:
    WindowCommandsTest() { CAppSettings().clear(); }

    /// Whatever dialog opens is closed again; its class, or that of the last of them.
    std::string dialogOf(const std::function<void()>& act)
    {
        std::string name;
        QTimer closer;
        QObject::connect(&closer, &QTimer::timeout, &closer, [&name] {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                name = dialog->metaObject()->className();
                dialog->reject();
            }
        });
        closer.start(5);
        act();
        return name;
    }

    WindowHarness w;
};

/// In menu and tool bar, the same actions.
TEST_F(WindowCommandsTest, EachDoesAndSaysWhatItShould)
{
    w.folder.write("in", "");
    struct Row
    {
        const char *id, *does, *text, *toolTip;
        bool inToolBar = true, withoutFiles = true;
    } const rows[] = {
        {"add-file", "QFileDialog", "&Add file...\tCtrl+O", "Add file (Ctrl+O, Ctrl+N)"},
        {"open-input-folder", "a folder", "Open folder with &input file\tCtrl+F9",
         "Open folder with input file (Ctrl+F9)", true, false},
        {"open-output-folder", "a folder", "Open folder with &output file\tCtrl+F10",
         "Open folder with output file (Ctrl+F10)", true, false},
        {"quit", "closed", "&Quit", "Quit", false},
        {"encrypt", "CSetPasswordDialog", "&Encrypt\tF5", "Encrypt (F5)"},
        {"decrypt", "CSetPasswordDialog", "&Decrypt\tF6", "Decrypt (F6)"},
        {"stop", "", "&Stop encryption/decryption\tF8", "Stop encryption/decryption (F8)", true, false},
        {"clear", "cleared", "&Clear entered data\tCtrl+F8", "Clear entered data (Ctrl+F8)"},
        {"options", "COptionsDialog", "&Options...", "Options"},
        {"default-algorithm", "CSetAlgDialog", "&Default algorithm...", "Default algorithm"},
        {"algorithm-info", "CAlgInfoDialog", "&Information about algorithms...",
         "Information about algorithms"},
        {"shortcuts", "CkeyboardShortcutInfoDialog", "&Keyboard shortcuts...", "Keyboard shortcuts"},
        {"about", "CAboutDialog", "&About...", "About"},
    };
    test::UrlRecorder opened;
    const QList<QAction*> inToolBar = w.window->findChild<QToolBar*>()->actions();
    const Row* row = rows;
    for (QAction* menu : w.window->menuBar()->actions())
        for (QAction* action : menu->menu()->actions()) {
            if (action->isSeparator())
                continue;
            ASSERT_NE(row, std::end(rows)) << "a command that no row speaks of";
            SCOPED_TRACE(row->id);
            ASSERT_EQ(action->objectName(), row->id);
            EXPECT_EQ(action->text(), row->text);
            EXPECT_EQ(action->toolTip(), row->toolTip);
            EXPECT_EQ(inToolBar.contains(action), row->inToolBar);
            w.input().clear();
            w.output().clear();
            EXPECT_EQ(action->isEnabled(), row->withoutFiles);
            opened.urls.clear();
            w.window->show();
            w.input().setText(w.path("in"));
            w.output().setText(w.path("out"));
            EXPECT_EQ(action->isEnabled(), std::string("stop") != row->id) << "nothing runs";
            std::string seen = dialogOf([action] { action->trigger(); });
            if (seen.empty())
                seen = !opened.urls.empty()         ? "a folder"
                       : !w.window->isVisible()     ? "closed"
                       : w.input().text().isEmpty() ? "cleared"
                                                    : "";
            EXPECT_EQ(seen, row->does);
            ++row;
        }
    EXPECT_EQ(row, std::end(rows));
}

TEST_F(WindowCommandsTest, FilesAreAskedForWhereverTheUserClicks)
{
    for (auto* button : std::initializer_list<QAbstractButton*>{w.window->findChild<CDropHint*>(),
                                                                &w.toolButton("Choose the input file"),
                                                                &w.button("buttonAddToList")})
        EXPECT_EQ(dialogOf([button] { button->click(); }), "QFileDialog");
}

TEST_F(WindowCommandsTest, AreListedForTheUser)
{
    QString text;
    w.onDialog<QDialog>([&text](QDialog& dialog) {
        text = dialog.findChild<QTextEdit*>()->toPlainText();
        dialog.reject();
    });
    w.window->findChild<QAction*>("shortcuts")->trigger();
    EXPECT_EQ(text.toStdString(), "This is a list of keyboard shortcuts in Quillet.\n\n"
                                  "'F5' - Start encryption\n"
                                  "'F6' - Start decryption\n"
                                  "'F8' - Stop encryption/decryption\n"
                                  "'Ctrl+F8' (Cmd+F8) - Clear entered data\n"
                                  "'Ctrl+F9' (Cmd+F9) - Open folder with input file\n"
                                  "'Ctrl+F10' (Cmd+F10) - Open folder with output file\n"
                                  "'Ctrl+O' (Cmd+O) - Add file to encrypt/decrypt\n"
                                  "'Ctrl+N' (Cmd+N) - Add file to encrypt/decrypt\n");
}

/// A combo box would take Ctrl+O as a search for "O".
TEST_F(WindowCommandsTest, KeysWorkWhereverTheFocusIs)
{
    auto* list = w.form().algFrame().findChild<QComboBox*>();
    for (QWidget* focus : w.window->findChildren<QWidget*>()) {
        if (focus->focusPolicy() == Qt::NoFocus || !focus->isVisible() || focus->window() != w.window.get())
            continue;
        SCOPED_TRACE(focus->metaObject()->className());
        const int current = list->currentIndex();
        for (const Qt::Key key : {Qt::Key_O, Qt::Key_N})
            EXPECT_EQ(dialogOf([&] { QTest::keyClick(focus, key, Qt::ControlModifier); }), "QFileDialog");
        w.output().setText("x");
        QTest::keyClick(focus, Qt::Key_F8, Qt::ControlModifier);
        EXPECT_EQ(w.output().text(), "");
        EXPECT_EQ(list->currentIndex(), current);
    }
}

} // namespace
