#include "window/WindowHarness.h"

#include "app/queue/CQueueList.h"
#include "app/queue/CQueueModel.h"
#include "support/DataRows.h"
#include "support/Environment.h"

namespace test {

using Words = QStringList;

/// What a user does, and what he sees then, as a file in tests/data/window tells it.
struct Script
{
    std::string name;
    std::vector<Words> steps;
};

static void PrintTo(const Script& script, std::ostream* out)
{
    *out << script.name;
}

static std::vector<Script> scripts()
{
    std::vector<Script> all;
    for (const Row& row : dataRows("window")) {
        Words words;
        for (const std::string& word : row)
            words += QString::fromStdString(word);
        if (words.value(0) == "test")
            all.push_back({row[1], {}});
        else if (!words.empty())
            all.back().steps.push_back(words);
    }
    return all;
}

class ScriptTest : public WindowTest, public ::testing::WithParamInterface<Script>
{
protected:
    ScriptTest()
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { answerDialogs(); });
        m_timer.start(5);
    }
    /// Does what the step says, or compares what the window shows there with the words.
    void follow(const QString& step, const Words& words)
    {
        SCOPED_TRACE((step + ' ' + words.join(' ')).toStdString());
        if (const auto action = m_actions.find(step); action != m_actions.end())
            return action->second(words);
        ASSERT_TRUE(m_sights.contains(step)) << "no such step";
        const QString seen = m_sights.at(step)().section('|', 0, words.size() - 1);
        EXPECT_EQ(seen.toStdString(), words.join('|').toStdString());
    }

private:
    void inShell(const Words& command)
    {
        const std::string line = "cd " + folder.path().string() + " && " + command.join(' ').toStdString();
        EXPECT_EQ(std::system(line.c_str()), 0);
    }
    void setAll(const Words& words)
    {
        std::map<QString, QVariant> values;
        for (const QString& word : words)
            values[word.section('=', 0, 0)] = word.section('=', 1);
        set(values);
    }
    /// A language, and the default algorithm unless it stays.
    void changeOptions(const Words& words)
    {
        SAppOptions changed = options.read();
        changed.localeId = words[0].toUInt();
        if (words.size() > 1)
            changed.setDefaultAlgorithm({1, words[1].toUInt()});
        window->appOptionsChanged(changed);
        QCoreApplication::processEvents();
    }
    static void pressOn(QWidget& widget, const QString& key)
    {
        const int both = QKeySequence(key)[0];
        const int modifiers = both & int(Qt::KeyboardModifierMask);
        QTest::keyClick(&widget, Qt::Key(both - modifiers), QFlag(modifiers));
    }
    /// A button by its name, its tool tip or as the drop area.
    void click(const QString& what)
    {
        for (auto* button : window->findChildren<QAbstractButton*>())
            if (button->objectName() == what || button->toolTip() == what ||
                (button == &hint() && what == "hint"))
                return button->click();
        ADD_FAILURE() << "no such button";
    }
    void fillIn(const Words& texts)
    {
        input().setText(texts[0]);
        output().setText(texts[1]);
    }
    /// Key and password, and what goes into the fields unless it is there.
    void begin(const Words& words)
    {
        answerPassword(words[1]);
        if (words.size() > 2)
            fillIn(words.mid(2));
        pressOn(*window, words[0]);
    }
    void dropAll(const Words& files)
    {
        QList<QUrl> urls;
        for (const QString& file : files)
            urls += QUrl::fromLocalFile(file);
        window->filesDropped(DropOnWindow, urls);
    }
    /// Of a dialog for a secret also file, algorithm, and what it shows and, if it is a switch, has on.
    static QString summary(QDialog& dialog)
    {
        const auto* subject = dialog.findChild<QLabel*>("labelSubject");
        if (!subject)
            return dialog.windowTitle();
        QString shown;
        for (const auto& [name, letter] :
             {std::pair("checkBoxSeal", 's'), std::pair("checkBoxUseSalt", 'a'),
              std::pair("checkBoxRewrite", 'r'), std::pair("labelAdvancedMode", 'l'),
              std::pair("frameConfirmPassword", 'c')}) {
            const auto* widget = dialog.findChild<QWidget*>(name);
            const auto* box = qobject_cast<const QCheckBox*>(widget);
            if (widget && widget->isVisible() && (!box || box->isChecked()))
                shown += letter;
        }
        const auto* password = dialog.findChild<QLineEdit*>("lineEditPassword");
        if (password && password->echoMode() == QLineEdit::Normal)
            shown += 'p';
        const QString info = child<QTextEdit>(dialog, "textEditInfo").toPlainText();
        return QStringList{dialog.windowTitle(), subject->text(), info.mid(info.lastIndexOf(": ") + 2), shown}
            .join('|');
    }
    void tell(const QString& text) { m_asked += (m_asked.isEmpty() ? "" : "|") + text; }
    /// Sets a property of a child, presses one, tells the first line of a property, or leaves.
    void use(QDialog& dialog, const QString& step)
    {
        if (step == "reject")
            return dialog.reject();
        const QString target = step.section(QRegularExpression("[=!?]"), 0, 0);
        const QString value = step.section('=', 1);
        if (target == "key")
            return pressOn(dialog, value);
        auto& widget = child<QWidget>(dialog, target.section('.', 0, 0));
        const QByteArray property = target.section('.', 1).toUtf8();
        if (step.endsWith('!'))
            pressOn(widget, "Space");
        else if (step.endsWith('?'))
            tell(widget.property(property).toString().section('\n', 0, 0));
        else
            EXPECT_TRUE(widget.setProperty(property, value));
    }
    /// In the order in which they are told of.
    void answerDialogs()
    {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || m_dialogs.empty() || !dialog->inherits(m_dialogs.front()[0].toUtf8()))
            return;
        tell(summary(*dialog));
        for (const QString& step : m_dialogs.takeFirst().mid(1))
            use(*dialog, step);
    }
    /// Once the dialog to come is open.
    void meanwhile(const Words& command)
    {
        onDialog<CSetPasswordDialog>([this, command](CSetPasswordDialog&) { inShell(command); });
    }
    /// In the dialog to come; no file leaves it.
    void choose(const QString& file)
    {
        onDialog<QFileDialog>([this, file](QFileDialog& dialog) {
            tell(dialog.windowTitle() + '|' + dialog.directory().path() +
                 (dialog.acceptMode() == QFileDialog::AcceptSave ? "|save" : ""));
            if (file.isEmpty())
                return dialog.reject();
            auto& field = child<QLineEdit>(dialog, "fileNameEdit");
            field.setText(file);
            QTest::keyClick(&field, Qt::Key_Return);
        });
    }
    /// The question to come, by one of its buttons.
    void answer(const QString& text)
    {
        onDialog<QMessageBox>([this, text](QMessageBox& box) {
            tell(box.text().simplified() + '|' + box.defaultButton()->text().remove('&') +
                 (box.textFormat() == Qt::PlainText ? "|plain" : ""));
            for (QAbstractButton* button : box.buttons())
                if (button->text().remove('&') == text)
                    return button->click();
            ADD_FAILURE() << "no such button";
            box.reject();
        });
    }
    QTreeView& view() { return find<QTreeView>("fileList"); }
    QModelIndex cell(int row, int column = 0) { return view().model()->index(row, column); }
    void deleteRows(const Words& rows)
    {
        view().clearSelection();
        for (const QString& row : rows)
            view().selectionModel()->select(cell(row.toInt()),
                                            QItemSelectionModel::Select | QItemSelectionModel::Rows);
        QTest::keyClick(&view(), Qt::Key_Delete);
    }
    QString list()
    {
        QStringList lines;
        for (int row = 0; row < view().model()->rowCount(); ++row)
            lines += cell(row, CQueueModel::Name).data().toString() + ": " +
                     cell(row, CQueueModel::State).data().toString();
        return lines.join(" / ");
    }
    /// Its text, kind and detail.
    QString message(const char* line)
    {
        const char* const kinds[] = {"|plain|", "|success|", "|warning|", "|error|"};
        const auto& shown = find<CMessageLine>(line);
        return shown.text() + kinds[int(shown.kind())] + shown.detail();
    }
    QString offered()
    {
        QStringList names;
        for (const char* name :
             {"encrypt", "decrypt", "default-algorithm", "stop", "buttonStop", "buttonClearList"})
            if (find<QObject>(name).property("enabled").toBool())
                names += name;
        return names.join(' ');
    }
    /// Whether it is shown, its value, and the greatest that it had.
    QString taskbar() const
    {
        return QString("%1|%2|%3")
            .arg(isTaskbarShown ? "shown" : "")
            .arg(taskbarValues.back())
            .arg(std::ranges::max(taskbarValues));
    }
    /// How those of the desktop were brought up to date: the context menu, and "send to".
    QString menus()
    {
        QStringList updates;
        for (const auto& [contextMenu, sendTo] : std::exchange(shellUpdates, {}))
            updates += QString("%1 %2").arg(contextMenu).arg(sendTo);
        return updates.join(" / ");
    }
    QProgressBar& bar() { return find<QProgressBar>(); }
    void awaitSight(const Words& words)
    {
        ASSERT_TRUE(waitFor([&] { return m_sights.at(words[0])() == words[1]; }));
    }
    void awaitProgress()
    {
        const float before = progress().percent();
        ASSERT_TRUE(waitFor([&] { return progress().percent() > before; }));
    }
    void quit()
    {
        EXPECT_TRUE(window->close());
        window.reset();
    }

    std::optional<Environment> m_config; ///< another folder for the settings
    UrlRecorder m_folders;
    QTimer m_timer;
    QList<Words> m_dialogs; ///< to come: their class, and what is done there
    QString m_asked;        ///< by all dialogs since the last look

    const std::map<QString, std::function<void(const Words&)>> m_actions{
        {"$", [this](auto& words) { inShell(words); }},
        {"set", [this](auto& words) { setAll(words); }},
        {"config", [this](auto& words) { m_config.emplace("XDG_CONFIG_HOME", words[0].toUtf8()); }},
        {"apply", [this](auto&) { options.applyAtStart(); }},
        {"options", [this](auto& words) { changeOptions(words); }},
        {"arguments", [this](auto& words) { window->processCommandLine(words); }},
        {"drop", [this](auto& words) { dropAll(words); }},
        {"fill", [this](auto& words) { fillIn(words); }},
        {"press", [this](auto& words) { pressOn(*window, words[0]); }},
        {"key", [this](auto& words) { pressOn(find<QWidget>(words[0]), words[1]); }},
        {"click", [this](auto& words) { click(words[0]); }},
        {"follow", [this](auto& words) { QTest::keyClick(&link(words[0].toUtf8()), Qt::Key_Space); }},
        {"dialog", [this](auto& words) { m_dialogs += words; }},
        {"choose", [this](auto& words) { choose(words[0]); }},
        {"later", [](auto&) { QTest::qWait(200); }}, // for what must not come any more
        {"answer", [this](auto& words) { answer(words[0]); }},
        {"password", [this](auto& words) { answerPassword(words[0]); }},
        {"meanwhile", [this](auto& words) { meanwhile(words); }},
        {"begin", [this](auto& words) { begin(words); }},
        {"end", [this](auto&) { waitForEnd(); }},
        {"current", [this](auto& words) { view().setCurrentIndex(cell(words[0].toInt())); }},
        {"delete", [this](auto& words) { deleteRows(words); }},
        {"until", [this](auto& words) { awaitSight(words); }},
        {"advance", [this](auto&) { awaitProgress(); }},
        {"damage", [this](auto& words) { damage(words[0].toUtf8()); }},
        {"active",
         [this](auto& words) { QApplication::setActiveWindow(words[0] == "here" ? window.get() : nullptr); }},
        {"quit", [this](auto&) { quit(); }},
    };

    const std::map<QString, std::function<QString()>> m_sights{
        {"fields", [this] { return input().text() + '|' + output().text(); }},
        {"input", [this] { return message("inputMessage"); }},
        {"output", [this] { return message("outputMessage"); }},
        {"result", [this] { return message("resultMessage"); }},
        {"queue", [this] { return message("queueMessage"); }},
        {"offer",
         [this] { return link("inputMessage").isVisible() ? link("inputMessage").accessibleName() : ""; }},
        {"progress", [this] { return progress().message() + '|' + progress().notice(); }},
        {"notice", [this] { return progress().notice(); }},
        {"percent", [this] { return QString::number(bar().value() * 100 / bar().maximum()); }},
        {"at-work", [this] { return isRunning() && progress().percent() > 0.01F ? "yes" : "no"; }},
        {"fields-open",
         [this] {
             return input().isEnabled() || output().isEnabled() || hint().isEnabled() ||
                            form().algFrame().isEnabled() || button("buttonDecrypt").isEnabled() ||
                            button("buttonAddToList").isEnabled() || form().acceptDrops()
                        ? "yes"
                        : "no";
         }},
        {"offered", [this] { return offered(); }},
        {"taskbar", [this] { return taskbar(); }},
        {"title",
         [this] { return window->windowHandle()->title().replace(QRegularExpression("^\\d+%"), "N%"); }},
        {"default", [this] { return button("buttonDecrypt").isDefault() ? "decrypt" : "encrypt"; }},
        {"algorithm", [this] { return QString::fromStdString(algorithm()); }},
        {"hint", [this] { return hint().accessibleName(); }},
        {"list", [this] { return form().isQueueShown() ? list() : ""; }},
        {"counted", [this] { return child<CElidedLabel>(form().queueList()).text(); }},
        {"asked", [this] { return std::exchange(m_asked, {}); }},
        {"opened", [this] { return QUrl::toStringList(std::exchange(m_folders.urls, {})).join(' '); }},
        {"notified", [this] { return std::exchange(notifications, {}).join(' '); }},
        {"menus", [this] { return menus(); }},
        {"texts", [this] { return find<QAction>("quit").text() + '|' + button("buttonEncrypt").text(); }},
        {"stored-algorithm",
         [this] { return algorithms.displayName(options.defaultAlgorithm().value_or(AlgSelection())); }},
        {"problem", [this] { return options.problem(); }},
        {"locale", [this] { return QString::number(options.read().localeId); }},
    };
};

INSTANTIATE_TEST_SUITE_P(, ScriptTest, ::testing::ValuesIn(scripts()),
                         [](const auto& tested) { return tested.param.name; });

TEST_P(ScriptTest, Holds)
{
    for (Words step : GetParam().steps) {
        step.replaceInStrings("@", path("").chopped(1));
        follow(step[0], step.mid(1));
    }
}

} // namespace test
