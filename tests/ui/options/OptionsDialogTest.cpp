#include "ui/options/COptionsDialog.h"

#include "common/naming/NamingSettings.h"
#include "common/settings/IAppOptionsChanged.h"
#include "support/ChangedOptions.h"
#include "support/DataRows.h"
#include "ui/FakeAlgProvider.h"
#include "ui/Widgets.h"
#include "ui/options/NamingWarning.h"

#include <set>

namespace {

using thisapp::SAppOptions;

const char* const SameDecrypted = "Decrypted files would get the names of their input files.";
const char* const NoFolder = "No default output folder is given: files go beside their input.";
const char* const RelativeFolder = "The default output folder must be an absolute path.";
const char* const Applied = "Success: The options were applied.";

class OptionsDialog : public DialogTest<COptionsDialog>, thisapp::IAppOptionsChanged
{
protected:
    OptionsDialog()
    {
        dialog.setAlgProvider(FakeAlgProvider());
        dialog.setLanguages({{1031, "Deutsch"}, {1033, "English"}});
        dialog.setShortcuts(
            {{Qt::Key_F5, "Start encryption"}, {thisapp::ctrl(Qt::Key_F8), "Clear entered data"}});
        dialog.setReceiver(this);
    }
    thisapp::SAppliedOptions appOptionsChanged(const SAppOptions& options) override
    {
        applied.push_back(options);
        return {problem, inUse.value_or(options.localeId)};
    }

    void show(const SAppOptions& options = {})
    {
        dialog.reject();
        dialog.setOptions(options);
        open(dialog);
    }

    /// Ticks or clears a box as a user with a keyboard does.
    void toggle(const QString& box) { QTest::keyClick(&child(dialog, box), Qt::Key_Space); }
    void write(const QString& edit, const char* text)
    {
        QTest::keyClick(&child(dialog, edit), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&child(dialog, edit), text);
    }
    /// Presses Tab until a widget has the focus; false when it is never reached.
    static bool tabTo(const QString& name)
    {
        for (int i = 0; i < 100 && focusName() != name; ++i)
            press("Tab");
        return focusName() == name;
    }

    std::vector<SAppOptions> applied;
    QString problem;
    std::optional<std::uint32_t> inUse;
};

/// Without the default algorithm, as it is when nobody chose one.
SAppOptions unchosen(SAppOptions options)
{
    options.setDefaultAlgorithm({});
    return options;
}

TEST_F(OptionsDialog, ShowsAndReturnsEveryValue)
{
    for (const SAppOptions& options : test::eachChanged()) {
        show(options);
        press("Return");
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
        EXPECT_EQ(dialog.options(), unchosen(options)) << "what the window has selected stays";
    }
    EXPECT_TRUE(applied.empty()) << "after OK it is the caller who hands the options on";
    EXPECT_EQ(text("comboLevel"), "DEBUG");
    EXPECT_EQ(child<QTableWidget>(dialog, "tableShortcuts").item(1, 1)->text(), "Clear entered data");
}

bool& option(SAppOptions& options, const std::string& key)
{
    std::map<std::string, bool*> found;
    const auto note = [&found]<class T>(const char* name, T& value) {
        if constexpr (std::is_same_v<T, bool>)
            found[name] = &value;
    };
#define SETTING(Type, Key, member, fallback) note(#Key, options.member);
#include "common/settings/SettingsKeys.def"
    return *found.at(key);
}

TEST_F(OptionsDialog, EveryCheckBoxStandsForItsOption)
{
    show();
    for (const test::Row& row : test::dataRows("ui/option_boxes.txt")) {
        SCOPED_TRACE(row[1]);
        const auto boxes = child(dialog, row[0].c_str()).findChildren<QCheckBox*>();
        const auto found = std::ranges::find_if(
            boxes, [&](const QCheckBox* box) { return box->text().remove('&') == row[1].c_str(); });
        ASSERT_NE(found, boxes.end());
        (*found)->toggle();
        SAppOptions expected;
        bool& changed = option(expected, row[2]);
        changed = !changed;
        EXPECT_TRUE(isEnabled("buttonApply"));
        dialog.onUiApply();
        EXPECT_EQ(unchosen(applied.back()), unchosen(expected));
        EXPECT_FALSE(isEnabled("buttonApply"));
        (*found)->toggle();
        dialog.onUiApply();
    }
}

TEST_F(OptionsDialog, ApplyHandsOverAndCancelKeepsThat)
{
    show();
    toggle("checkSalt");
    child(dialog, "buttonApply").setFocus();
    press("Space");
    EXPECT_EQ(focusName(), "buttonOk");
    EXPECT_FALSE(isEnabled("buttonApply"));
    ASSERT_EQ(applied.size(), 1U);
    EXPECT_TRUE(applied[0].useSalt);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(message(), Applied);
    toggle("checkShowPassword");
    EXPECT_EQ(message(), "") << "the message speaks of what is shown";
    press("Esc");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.options(), applied[0]);

    show(dialog.options());
    EXPECT_FALSE(child<QCheckBox>(dialog, "checkShowPassword").isChecked());
    toggle("checkSalt");
    dialog.close();
    EXPECT_EQ(dialog.options(), applied[0]) << "closing the window cancels";
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_EQ(applied.size(), 1U);

    show(test::changedOptions());
    child<QPushButton>(dialog, "buttonRestore").click();
    dialog.onUiOk();
    SAppOptions expected;
    expected.localeId = 1031;
    EXPECT_EQ(dialog.options(), expected) << "with the default algorithm, as it is another one";
}

TEST_F(OptionsDialog, DependentControlsAndSamplesFollowEveryChange)
{
    SAppOptions options;
    options.encFileNameSuffix = options.decFileNameSuffix = "-s";
    options.encFileNamePrefix = options.decFileNamePrefix = "p-";
    show(options);
    for (const auto& [name, dependent] : {std::pair("checkDeleteSource", "checkConfirmDelete"),
                                          {"checkUseDefaultAlgorithm", "comboAlgorithm"},
                                          {"checkUseOutputDir", "editOutputDir"},
                                          {"checkUseOutputDir", "buttonBrowse"},
                                          {"checkUseOutputDir", "labelOutputDir"},
                                          {"frameEncryption/checkExt", "frameEncryption/editExt"},
                                          {"frameEncryption/checkSuffix", "frameEncryption/editSuffix"},
                                          {"frameDecryption/checkPrefix", "frameDecryption/editPrefix"}})
        for (int times = 0; times < 2; ++times) {
            EXPECT_EQ(isEnabled(dependent), child<QCheckBox>(dialog, name).isChecked()) << dependent;
            toggle(name);
        }

    const std::tuple<QString, QString, QString> rows[] = {
        {"Ext", "MyFile.txt", "MyFile.txt.x"},
        {"Suffix", "MyFile-s.txt.%1", "MyFilex.txt.%1"},
        {"Prefix", "p-MyFile.txt.%1", "xMyFile.txt.%1"},
        {"Date", "MyFile" + QDate::currentDate().toString("_yyyy_MM_dd") + ".txt.%1", ""},
    };
    for (const auto& [frame, ext] :
         {std::pair(QString("frameEncryption/"), "enc"), {"frameDecryption/", "dec"}})
        for (const auto& [part, toggled, typed] : rows) {
            show(options);
            const QLineEdit& sample = child<QLineEdit>(dialog, frame + "editSample");
            EXPECT_EQ(sample.text(), QString("MyFile.txt.") + ext);
            toggle(frame + "check" + part);
            EXPECT_EQ(sample.text(), QString(toggled).replace("%1", ext)) << part;
            if (typed.isEmpty())
                continue;
            if (!isEnabled(frame + "edit" + part))
                toggle(frame + "check" + part);
            write(frame + "edit" + part, "x");
            EXPECT_EQ(sample.text(), QString(typed).replace("%1", ext)) << part;
            EXPECT_TRUE(sample.isReadOnly());
        }
    show();
    toggle("frameEncryption/checkPrefix");
    write("frameEncryption/editPrefix", "<b>/\\x");
    EXPECT_EQ(text("frameEncryption/editSample"), "<b>xMyFile.txt.enc") << "separators are not accepted";
    write("frameDecryption/editExt", "..plain ");
    EXPECT_EQ(text("frameDecryption/editSample"), "MyFile.txt.plain");
    dialog.onUiOk();
    EXPECT_EQ(dialog.options().decFileNameExt, "plain");
}

TEST(NamingWarning, TellsOfNamesThatCannotWork)
{
    const QString tooLong = "File names would become longer than a file system takes.";
    const QString dotted = "Files are not recognised by an extension with a dot inside.";
    const QString forbidden = "Windows and most memory sticks take no names with one of <>:\"|?*";
    struct SRow
    {
        QString encExt, decExt;
        std::optional<QString> folder;
        QString warning;
    };
    std::vector<SRow> rows = {
        {"enc", "dec", {}, ""},
        {"", "dec", {}, "Encrypted files would get the names of their input files."},
        {"enc", "ENC", {}, SameDecrypted},
        {"enc", "dec", "", NoFolder},
        {"enc", "dec", "x", RelativeFolder},
        {"enc", "ENC", "/x", ""},
        {QString(244, 'x'), "dec", {}, ""}, // after MyFile.txt.
        {QString(245, 'x'), "dec", {}, tooLong},
        {QString(123, QChar(0xfc)), "dec", {}, tooLong},
        {"a.enc", "dec", {}, dotted},
        {"enc", "a.dec", {}, dotted},
    };
    for (const QChar c : QString("<>:\"|?*"))
        rows.push_back({c, "dec", {}, forbidden});
    for (const auto& [encExt, decExt, folder, warning] : rows) {
        thisapp::NamingSettings naming;
        naming.encryption.addExt = !encExt.isEmpty();
        naming.encryption.ext = encExt.isEmpty() ? "a.enc" : encExt;
        naming.decryption.ext = decExt;
        naming.useDefaultOutputDir = folder.has_value();
        naming.outputDirPath = folder.value_or("");
        EXPECT_EQ(thisapp::namingWarning(naming), warning) << encExt << decExt;
        naming.autogenerate = false;
        EXPECT_EQ(thisapp::namingWarning(naming), "");
    }
}

TEST_F(OptionsDialog, WarnsOfNamesThatCannotWorkAndTakesNoFolderThatMeansNone)
{
    SAppOptions options;
    options.decFileNameExt = "ENC";
    show(options);
    EXPECT_EQ(message(), QString("Warning: ") + SameDecrypted);
    toggle("checkUseOutputDir");
    EXPECT_EQ(text("lineEditMsg"), NoFolder);
    write("editOutputDir", " /tmp ");
    EXPECT_EQ(message(), "");
    dialog.onUiOk();
    EXPECT_EQ(dialog.options().outputDirPath, "/tmp");
    show(dialog.options());
    EXPECT_EQ(text("editOutputDir"), "/tmp");

    for (const char* none : {"some/folder", "~other/x", "sftp://host/x"}) {
        write("editOutputDir", none);
        dialog.onUiOk();
        dialog.onUiApply();
        EXPECT_TRUE(dialog.isVisible() && applied.empty()) << none;
        EXPECT_EQ(focusName(), "editOutputDir");
        EXPECT_EQ(message(), QString("Error: ") + RelativeFolder);
        child<QTabWidget>(dialog, "tabs").setCurrentIndex(1);
        EXPECT_EQ(text("lineEditMsg"), RelativeFolder);
    }
    write("editOutputDir", " ~/x");
    dialog.onUiApply();
    EXPECT_EQ(text("editOutputDir"), QDir::homePath() + "/x");
    EXPECT_EQ(applied.back().outputDirPath, QDir::homePath() + "/x");
    write("editOutputDir", "file:///a%20b");
    dialog.onUiOk();
    EXPECT_EQ(dialog.options().outputDirPath, "/a b");
}

TEST_F(OptionsDialog, TellsWhatIsNotInEffectAndKeepsWhatIsNotOffered)
{
    dialog.setProblem("There is no log file.");
    show();
    EXPECT_EQ(message(), "Warning: There is no log file.");
    dialog.setLanguages({{1031, "Deutsch"}, {1033, "English"}});
    EXPECT_EQ(child<QComboBox>(dialog, "comboLanguage").count(), 2);
    show();
    QTest::keyClick(&child(dialog, "comboLanguage"), Qt::Key_Up);
    EXPECT_EQ(text("comboLanguage"), "Deutsch");
    EXPECT_EQ(text("lineEditMsg"), "The language changes with OK or Apply.");
    problem = "The translation can't be loaded.";
    inUse = 1033;
    dialog.onUiApply();
    EXPECT_EQ(applied.back().localeId, 1031U);
    EXPECT_EQ(message(), "Warning: " + problem);
    EXPECT_EQ(text("comboLanguage"), "English") << "the one in use";
    problem.clear();
    dialog.onUiApply();
    EXPECT_EQ(message(), Applied);
    show(dialog.options());
    EXPECT_EQ(message(), "") << "it is over";

    SAppOptions options;
    options.localeId = 1049;
    options.setDefaultAlgorithm({10, 7});
    show(options);
    dialog.onUiOk();
    EXPECT_EQ(dialog.options().localeId, 1049U) << "the language stays";
    EXPECT_EQ(dialog.options().defaultAlgorithm(), thisapp::AlgSelection());

    show();
    QTest::keyClick(&child(dialog, "comboAlgorithm"), Qt::Key_Down);
    EXPECT_EQ(text("comboAlgorithm"), "Alg-3") << "the disabled one is passed over";
    EXPECT_TRUE(isEnabled("buttonApply"));
    dialog.onUiApply();
    QTest::keyClick(&child(dialog, "comboLevel"), Qt::Key_Down);
    EXPECT_TRUE(isEnabled("buttonApply")) << "after each change";
}

TEST_F(OptionsDialog, ChoosesTheOutputFolder)
{
    const QTemporaryDir folder;
    SAppOptions options;
    options.useDefaultOutputDir = true;
    options.outputDirPath = "/usr";
    show(options);
    for (const auto& [keys, chosen] : {std::pair("Esc", QString("/usr")), {"Return", folder.path()}}) {
        whenModal([&, key = keys](QWidget& chooser) {
            EXPECT_EQ(chooser.windowTitle(), "Default output directory");
            EXPECT_EQ(dynamic_cast<QFileDialog&>(chooser).directory().path(), "/usr");
            child<QLineEdit>(chooser, "fileNameEdit").setText(folder.path());
            child(chooser, "fileNameEdit").setFocus();
            press(key);
        });
        QTest::mouseClick(&child(dialog, "buttonBrowse"), Qt::LeftButton);
        EXPECT_EQ(text("editOutputDir"), chosen);
    }
}

TEST_F(OptionsDialog, ViewsTheLogFile)
{
    const QTemporaryDir folder;
    QFile log(folder.filePath("quillet.log"));
    show();
    press("Alt+V");
    dialog.setLogFilePath(log.fileName());
    EXPECT_EQ(text("editLogFile"), log.fileName());
    ASSERT_TRUE(tabTo("labelViewLog"));
    press("Return");
    EXPECT_TRUE(text("lineEditMsg").startsWith("The log file can't be read: ")) << text("lineEditMsg");

    ASSERT_TRUE(log.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    log.write("<i>first</i>\n");
    QString shown;
    whenModal([&](QWidget& viewer) {
        log.write("second\n");
        press("F5");
        shown = ::text(viewer, "text");
        press("Esc");
    });
    press("Return");
    EXPECT_EQ(shown, "<i>first</i>\nsecond\n");
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(OptionsDialog, EveryControlHasAMnemonicOfItsOwnOnItsTab)
{
    show();
    auto& tabs = child<QTabWidget>(dialog, "tabs");
    for (int tab = 0; tab < tabs.count(); ++tab) {
        tabs.setCurrentIndex(tab);
        QStringList labels;
        for (int i = 0; i < tabs.count(); ++i)
            labels += tabs.tabText(i);
        for (const auto* widget : dialog.findChildren<QWidget*>())
            if (widget->isVisible() && (widget->inherits("QAbstractButton") || widget->inherits("QLabel")))
                labels += widget->property("text").toString();
        std::set<QString> seen;
        for (const QString& label : labels) {
            const QString key = QKeySequence::mnemonic(label).toString();
            // The link has none, and the letters of the others are all taken.
            EXPECT_NE(key.isEmpty(),
                      label != "Shortcut keys:" && label != "Restore defaults" && !label.startsWith("<a "))
                << label;
            EXPECT_TRUE(key.isEmpty() || seen.insert(key).second) << tab << ": " << label;
        }
    }
}

TEST_F(OptionsDialog, PlacesItsColumnsByTheRoomAndTheLanguage)
{
    show();
    QWidget& general = child(dialog, "frameGeneral");
    const auto left = [&](const char* name) { return child(dialog, name).mapTo(&general, QPoint()).x(); };
    const auto right = [&](const char* name) { return left(name) + child(dialog, name).width(); };
    for (const bool room : {true, false}) {
        dialog.resize(room ? 5000 : 10, 500);
        EXPECT_TRUE(comesTrue([&] { return (left("checkShowConfirm") > right("checkSeal")) == room; }));
    }
    QApplication::setLayoutDirection(Qt::RightToLeft);
    EXPECT_TRUE(comesTrue([&] {
        return left("labelOutputDir") > left("editOutputDir") &&
               right("labelOutputDir") < right("checkUseOutputDir");
    }));
    QApplication::setLayoutDirection(Qt::LeftToRight);
    EXPECT_TRUE(comesTrue([&] { return left("labelOutputDir") > left("checkUseOutputDir"); }));

    const Capitals translator;
    EXPECT_EQ(text("frameDecryption/group"), "NAME OF DECRYPTED FILE");
    EXPECT_EQ(text("frameEncryption/checkExt"), "ADD F&ILE EXTENSION:");
    const auto& table = child<QTableWidget>(dialog, "tableShortcuts");
    EXPECT_EQ(table.item(0, 1)->text(), "START ENCRYPTION");
    EXPECT_EQ(table.horizontalHeaderItem(0)->text(), "SHORTCUT KEY");
    EXPECT_EQ(table.item(1, 0)->text(), "'Ctrl+F8' (Cmd+F8)");
    EXPECT_TRUE(text("labelViewLog").contains("VIEW LOG FILE"));
}

TEST_F(OptionsDialog, KeyboardAlone)
{
    dialog.resize(400, 300);
    show();
    // Each control in the order of the page, scrolled into sight as it gets the focus.
    for (const char* name :
         {"checkContextMenu", "checkSendTo", "comboLanguage", "checkUseDefaultAlgorithm", "comboAlgorithm",
          "checkShowPassword", "checkConfirmPassword", "checkAdvancedMode", "checkSeal", "checkSalt",
          "checkShowConfirm", "checkRewrite", "checkAutogenerate", "checkUseOutputDir"}) {
        ASSERT_TRUE(tabTo(name)) << name;
        EXPECT_FALSE(QApplication::focusWidget()->visibleRegion().isEmpty()) << name << " is out of sight";
    }
    press("Space");
    type("\t/out");
    press("Alt+E Alt+Y Alt+D End");
    EXPECT_TRUE(tabTo("tableShortcuts"));
    press("F2");
    EXPECT_EQ(child(dialog, "tableShortcuts").findChild<QLineEdit*>(), nullptr) << "nothing can be edited";
    press("Alt+F Alt+U");
    type("\t-s");
    press("Alt+V Alt+L End Alt+U Alt+A");
    const SAppOptions last = dialog.options();
    EXPECT_TRUE(tabTo("buttonCancel"));
    EXPECT_TRUE(tabTo("checkUseLogFile"));
    press("Return");
    EXPECT_EQ(dialog.result(), QDialog::Accepted);

    SAppOptions expected;
    expected.useDefaultOutputDir = expected.deleteSourceFileAfterEncryption = true;
    expected.confirmDeleteSourceFileAfterEncryption = false;
    expected.outputDirPath = "/out";
    expected.setDefaultAlgorithm({1, 3});
    expected.decFileNameAddSuffix = true;
    expected.decFileNameSuffix = "-s";
    expected.logLevel = 6;
    expected.useLogFile = true;
    EXPECT_EQ(last, expected);
    EXPECT_EQ(applied, std::vector{expected});
    EXPECT_EQ(dialog.options(), unchosen(expected)) << "it was applied before";
}

} // namespace
