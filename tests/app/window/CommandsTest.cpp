#include "window/WindowHarness.h"

#include "app/window/Commands.h"
#include "support/DataRows.h"

namespace test {

class CommandsTest : public WindowTest
{
protected:
    /// Whatever dialog opens is closed again; its class, or that of the last of them.
    static std::string dialogOf(const std::function<void()>& act)
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
};

/// The command's id; "" for none.
static std::string commandOf(const std::string& key)
{
    const int both = QKeySequence(key.c_str())[0];
    const int modifiers = both & int(Qt::KeyboardModifierMask);
    const Command* command = commandFor(Qt::Key(both - modifiers), QFlag(modifiers));
    return command ? command->id : "";
}

/// In menu and tool bar, the same actions.
TEST_F(CommandsTest, EachDoesAndSaysWhatItShould)
{
    folder.write("in", "");
    UrlRecorder opened;
    const auto rows = dataRows("commands.txt");
    auto row = rows.begin();
    for (QAction* menu : window->menuBar()->actions())
        for (QAction* action : menu->menu()->actions()) {
            if (action->isSeparator())
                continue;
            ASSERT_NE(row, rows.end()) << "a command that no row speaks of";
            const auto& [id, does, text, key, toolTip, offered, keys] =
                std::tie((*row)[0], (*row)[1], (*row)[2], (*row)[3], (*row)[4], (*row)[5], (*row)[6]);
            SCOPED_TRACE(id);
            EXPECT_EQ(action->objectName().toStdString(), id);
            EXPECT_EQ(action->text().toStdString(), key.empty() ? text : text + '\t' + key);
            EXPECT_EQ(action->toolTip().toStdString(), toolTip);
            EXPECT_EQ(find<QToolBar>().actions().contains(action), offered.starts_with("bar"));
            for (const QString& each : QString::fromStdString(keys).split(' ', Qt::SkipEmptyParts))
                EXPECT_EQ(commandOf(each.toStdString()), id);
            input().clear();
            output().clear();
            EXPECT_EQ(action->isEnabled(), offered.ends_with("no files"));
            opened.urls.clear();
            window->show();
            fill("in", "out");
            EXPECT_EQ(action->isEnabled(), id != "stop") << "nothing runs";
            std::string seen = dialogOf([action] { action->trigger(); });
            if (seen.empty())
                seen = !opened.urls.empty()       ? "a folder"
                       : !window->isVisible()     ? "closed"
                       : input().text().isEmpty() ? "cleared"
                                                  : "";
            EXPECT_EQ(seen, does);
            ++row;
        }
    EXPECT_EQ(row, rows.end());
    for (const char* key : {"F7", "F9", "N", "Alt+F5", "Ctrl+F5", "Ctrl+F6", "Ctrl+Alt+F8"})
        EXPECT_EQ(commandOf(key), "") << key;
    for (const bool hasInput : {true, false}) {
        input().setText(hasInput ? "x" : "");
        output().setText(hasInput ? "" : "x");
        EXPECT_EQ(find<QAction>("open-input-folder").isEnabled(), hasInput);
        EXPECT_EQ(find<QAction>("open-output-folder").isEnabled(), !hasInput);
    }
}

TEST_F(CommandsTest, AreListedForTheUser)
{
    std::string text;
    onDialog<QDialog>([&text](QDialog& dialog) {
        text = child<QTextEdit>(dialog).toPlainText().toStdString();
        dialog.reject();
    });
    find<QAction>("shortcuts").trigger();
    EXPECT_EQ(text, readFile(TEST_DATA_DIR "/shortcuts.txt"));
}

} // namespace test
