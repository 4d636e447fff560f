#include "ui/options/COptionsDialog.h"

#include "common/naming/NamingSettings.h"
#include "common/settings/IAppOptionsChanged.h"
#include "support/ChangedOptions.h"
#include "ui/FakeAlgProvider.h"
#include "ui/ShownKind.h"
#include "ui/Widgets.h"
#include "ui/options/NamingWarning.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDate>
#include <QDir>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>

#include <optional>
#include <set>

namespace {

using thisapp::MessageKind;
using thisapp::SAppOptions;

class OptionsDialog : public testing::Test, thisapp::IAppOptionsChanged
{
protected:
    void SetUp() override
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
        dialog.setOptions(options);
        open(dialog);
    }

    QWidget& inFrame(const char* frame, const char* name) { return child(child(dialog, frame), name); }
    /// Ticks or clears the box as a user with a keyboard does.
    static void toggle(QWidget& box) { QTest::keyClick(&box, Qt::Key_Space); }
    static void write(QWidget& edit, const char* text)
    {
        QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&edit, text);
    }
    MessageKind messageKind() { return shownKind(child<QLineEdit>(dialog, "lineEditMsg")); }
    QString text(const char* name) { return child<QLineEdit>(dialog, name).text(); }
    QString encSample() { return child<QLineEdit>(child(dialog, "frameEncryption"), "editSample").text(); }
    QString decSample() { return child<QLineEdit>(child(dialog, "frameDecryption"), "editSample").text(); }

    std::vector<SAppOptions> applied;
    QString problem;
    std::optional<std::uint32_t> inUse;
    COptionsDialog dialog;
};

/// Without the default algorithm, as it is when nobody chose one.
SAppOptions unchosen(SAppOptions options)
{
    options.setDefaultAlgorithm({});
    return options;
}

/// Presses Tab until a widget has the focus; false when it is never reached.
bool tabTo(const QWidget& target)
{
    for (int i = 0; i < 100 && QApplication::focusWidget() != &target; ++i)
        press(Qt::Key_Tab);
    return QApplication::focusWidget() == &target;
}

TEST_F(OptionsDialog, ShowsAndReturnsEveryValue)
{
    for (const SAppOptions& options : test::eachChanged()) {
        show(options);
        press(Qt::Key_Return);
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
        EXPECT_EQ(dialog.options(), unchosen(options)) << "what the window has selected stays";
    }
    EXPECT_TRUE(applied.empty()) << "after OK it is the caller who hands the options on";
    EXPECT_EQ(child<QComboBox>(dialog, "comboLevel").currentText(), "DEBUG");
    EXPECT_EQ(child<QTableWidget>(dialog, "tableShortcuts").item(1, 1)->text(), "Clear entered data");
}

TEST_F(OptionsDialog, EveryCheckBoxStandsForItsOption)
{
    using Option = bool SAppOptions::*;
    const std::vector<std::tuple<const char*, QString, Option>> rows{
        {"frameGeneral", "Integrate the program to shell context menu",
         &SAppOptions::integrateToShellContextMenu},
        {"frameGeneral", "Add the programm into \"Send To\" menu", &SAppOptions::addToSendMenu},
        {"frameGeneral", "Show confirm dialog", &SAppOptions::showConfirmDialog},
        {"frameGeneral", "Show password", &SAppOptions::showPassword},
        {"frameGeneral", "Require confirm password", &SAppOptions::useConfirmPassword},
        {"frameGeneral", "Auto delete input file after encryption",
         &SAppOptions::deleteSourceFileAfterEncryption},
        {"frameGeneral", "Show confirm dialog to delete input file after encryption",
         &SAppOptions::confirmDeleteSourceFileAfterEncryption},
        {"frameGeneral", "Set default algorithm at starting of program",
         &SAppOptions::useDefaultAlgorithmAtStarting},
        {"frameGeneral", "Seal encrypted files", &SAppOptions::sealFiles},
        {"frameGeneral", "Use salt", &SAppOptions::useSalt},
        {"frameGeneral", "Rewrite output file", &SAppOptions::rewriteOutputFile},
        {"frameGeneral", "Use advanced mode to enter key and IV", &SAppOptions::showAdvancedPasswordOptions},
        {"frameGeneral", "Autogenerate output file name", &SAppOptions::useOutputFileAutogenerator},
        {"frameGeneral", "Use default output folder", &SAppOptions::useDefaultOutputDir},
        {"frameEncryption", "Add file extension:", &SAppOptions::encFileNameAddExt},
        {"frameEncryption", "Add suffix:", &SAppOptions::encFileNameAddSuffix},
        {"frameEncryption", "Add prefix:", &SAppOptions::encFileNameAddPrefix},
        {"frameEncryption", "Add date", &SAppOptions::encFileNameAddDate},
        {"frameDecryption", "Add file extension:", &SAppOptions::decFileNameAddExt},
        {"frameDecryption", "Add suffix:", &SAppOptions::decFileNameAddSuffix},
        {"frameDecryption", "Add prefix:", &SAppOptions::decFileNameAddPrefix},
        {"frameDecryption", "Add date", &SAppOptions::decFileNameAddDate},
        {"frameAdvanced", "Use log file", &SAppOptions::useLogFile},
    };
    show();
    for (const auto& [frame, label, option] : rows) {
        const auto boxes = child(dialog, frame).findChildren<QCheckBox*>();
        const auto found = std::find_if(boxes.begin(), boxes.end(), [text = label](const QCheckBox* box) {
            return box->text().remove('&') == text;
        });
        ASSERT_NE(found, boxes.end()) << label;
        (*found)->toggle();
        SAppOptions expected;
        expected.*option = !(expected.*option);
        EXPECT_TRUE(child(dialog, "buttonApply").isEnabled()) << label;
        dialog.onUiApply();
        EXPECT_EQ(unchosen(applied.back()), unchosen(expected)) << label;
        EXPECT_FALSE(child(dialog, "buttonApply").isEnabled()) << label;
        (*found)->toggle();
        dialog.onUiApply();
    }
}

TEST_F(OptionsDialog, ApplyHandsOverAndCancelKeepsThat)
{
    QWidget& salt = child(dialog, "checkSalt");
    show();
    toggle(salt);
    child(dialog, "buttonApply").setFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(QApplication::focusWidget(), &child(dialog, "buttonOk"));
    EXPECT_FALSE(child(dialog, "buttonApply").isEnabled());
    ASSERT_EQ(applied.size(), 1U);
    EXPECT_TRUE(applied[0].useSalt);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(text("lineEditMsg"), "The options were applied.");
    EXPECT_EQ(messageKind(), MessageKind::Success);
    toggle(child(dialog, "checkShowPassword"));
    EXPECT_EQ(text("lineEditMsg"), "") << "the message speaks of what is shown";
    press(Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.options(), applied[0]);

    show(dialog.options());
    EXPECT_FALSE(child<QCheckBox>(dialog, "checkShowPassword").isChecked());
    toggle(salt);
    dialog.close();
    EXPECT_EQ(dialog.options(), applied[0]) << "closing the window cancels";
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_EQ(applied.size(), 1U);
}

TEST_F(OptionsDialog, RestoresTheDefaultsOfAllButTheLanguage)
{
    show(test::changedOptions());
    child<QPushButton>(dialog, "buttonRestore").click();
    dialog.onUiOk();
    SAppOptions expected;
    expected.localeId = 1031;
    EXPECT_EQ(dialog.options(), expected) << "with the default algorithm, as it is another one";
}

TEST_F(OptionsDialog, DependentControlsFollowTheirCheckBoxes)
{
    show();
    for (const auto& [frame, name, dependentName] :
         {std::tuple("frameGeneral", "checkDeleteSource", "checkConfirmDelete"),
          {"frameGeneral", "checkUseDefaultAlgorithm", "comboAlgorithm"},
          {"frameGeneral", "checkUseOutputDir", "editOutputDir"},
          {"frameGeneral", "checkUseOutputDir", "buttonBrowse"},
          {"frameGeneral", "checkUseOutputDir", "labelOutputDir"},
          {"frameEncryption", "checkExt", "editExt"},
          {"frameEncryption", "checkSuffix", "editSuffix"},
          {"frameDecryption", "checkPrefix", "editPrefix"}}) {
        auto& box = dynamic_cast<QCheckBox&>(inFrame(frame, name));
        const QWidget& dependent = inFrame(frame, dependentName);
        EXPECT_EQ(dependent.isEnabled(), box.isChecked()) << dependentName;
        toggle(box);
        EXPECT_EQ(dependent.isEnabled(), box.isChecked()) << dependentName;
        toggle(box);
    }
}

TEST_F(OptionsDialog, SamplesFollowEveryChange)
{
    const QString date = QDate::currentDate().toString("_yyyy_MM_dd");
    SAppOptions options;
    options.encFileNameSuffix = options.decFileNameSuffix = "-s";
    options.encFileNamePrefix = options.decFileNamePrefix = "p-";
    const struct
    {
        const char *box, *edit;
        QString toggled, typed;
    } rows[] = {{"checkExt", "editExt", "MyFile.txt", "MyFile.txt.x"},
                {"checkSuffix", "editSuffix", "MyFile-s.txt.%1", "MyFilex.txt.%1"},
                {"checkPrefix", "editPrefix", "p-MyFile.txt.%1", "xMyFile.txt.%1"},
                {"checkDate", nullptr, "MyFile" + date + ".txt.%1", {}}};
    for (const auto& [frame, ext] : {std::pair("frameEncryption", "enc"), {"frameDecryption", "dec"}})
        for (const auto& row : rows) {
            dialog.reject();
            show(options);
            const auto& sample = dynamic_cast<QLineEdit&>(inFrame(frame, "editSample"));
            EXPECT_EQ(sample.text(), QString("MyFile.txt.") + ext);
            toggle(inFrame(frame, row.box));
            EXPECT_EQ(sample.text(), QString(row.toggled).replace("%1", ext)) << row.box;
            if (row.edit == nullptr)
                continue;
            if (!inFrame(frame, row.edit).isEnabled())
                toggle(inFrame(frame, row.box));
            write(inFrame(frame, row.edit), "x");
            EXPECT_EQ(sample.text(), QString(row.typed).replace("%1", ext)) << row.edit;
            EXPECT_TRUE(sample.isReadOnly());
        }
    dialog.reject();
    show();
    toggle(inFrame("frameEncryption", "checkPrefix"));
    write(inFrame("frameEncryption", "editPrefix"), "<b>/\\x");
    EXPECT_EQ(encSample(), "<b>xMyFile.txt.enc") << "separators are not accepted";
    write(inFrame("frameDecryption", "editExt"), "..plain ");
    EXPECT_EQ(decSample(), "MyFile.txt.plain");
    dialog.onUiOk();
    EXPECT_EQ(dialog.options().decFileNameExt, "plain");
}

TEST(NamingWarning, TellsOfNamesThatCannotWork)
{
    const QString sameEncrypted = "Encrypted files would get the names of their input files.";
    const QString sameDecrypted = "Decrypted files would get the names of their input files.";
    const QString tooLong = "File names would become longer than a file system takes.";
    const QString dotted = "Files are not recognised by an extension with a dot inside.";
    const QString forbidden = "Windows and most memory sticks take no names with one of <>:\"|?*";
    using Change = std::function<void(thisapp::NamingSettings&)>;
    const auto ext = [](const QString& text) {
        return [text](auto& naming) { naming.encryption.ext = text; };
    };
    std::vector<std::pair<Change, QString>> rows = {
        {[](auto&) {}, ""},
        {[](auto& naming) { naming.encryption.addExt = false; }, sameEncrypted},
        {[](auto& naming) { naming.decryption.ext = "ENC"; }, sameDecrypted},
        {[](auto& naming) { naming.decryption.ext = "ENC", naming.autogenerate = false; }, ""},
        {[](auto& naming) { naming.useDefaultOutputDir = true; },
         "No default output folder is given: files go beside their input."},
        {[](auto& naming) { naming.useDefaultOutputDir = true, naming.outputDirPath = "x"; },
         "The default output folder must be an absolute path."},
        {[](auto& naming) {
             naming.decryption.ext = "ENC", naming.useDefaultOutputDir = true, naming.outputDirPath = "/x";
         },
         ""},
        {ext(QString(244, 'x')), ""}, // after MyFile.txt.
        {ext(QString(245, 'x')), tooLong},
        {ext(QString(123, QChar(0xfc))), tooLong},
        {ext("a.enc"), dotted},
        {[](auto& naming) { naming.encryption.ext = "a.enc", naming.encryption.addExt = false; },
         sameEncrypted},
        {[](auto& naming) { naming.decryption.ext = "a.dec"; }, dotted},
    };
    for (const QChar c : QString("<>:\"|?*"))
        rows.emplace_back(ext(c), forbidden);
    for (const auto& [change, warning] : rows) {
        thisapp::NamingSettings naming;
        change(naming);
        EXPECT_EQ(thisapp::namingWarning(naming).toStdString(), warning.toStdString());
    }
}

TEST_F(OptionsDialog, WarnsOfNamesThatCannotWork)
{
    SAppOptions options;
    options.decFileNameExt = "ENC";
    show(options);
    EXPECT_EQ(text("lineEditMsg"), "Decrypted files would get the names of their input files.");
    EXPECT_EQ(messageKind(), MessageKind::Warning);
    toggle(child(dialog, "checkUseOutputDir"));
    EXPECT_EQ(text("lineEditMsg"), "No default output folder is given: files go beside their input.");
    write(child(dialog, "editOutputDir"), " /tmp ");
    EXPECT_EQ(text("lineEditMsg"), "");
    dialog.onUiOk();
    EXPECT_EQ(dialog.options().outputDirPath, "/tmp");
    show(dialog.options());
    EXPECT_EQ(text("editOutputDir"), "/tmp");
}

TEST_F(OptionsDialog, TellsWhatIsNotInEffect)
{
    dialog.setProblem("There is no log file.");
    show();
    EXPECT_EQ(text("lineEditMsg"), "There is no log file.");
    EXPECT_EQ(messageKind(), MessageKind::Warning);
    dialog.setLanguages({{1031, "Deutsch"}, {1033, "English"}});
    EXPECT_EQ(child<QComboBox>(dialog, "comboLanguage").count(), 2);
    dialog.reject();
    show();
    auto& language = child<QComboBox>(dialog, "comboLanguage");
    QTest::keyClick(&language, Qt::Key_Up);
    EXPECT_EQ(language.currentText(), "Deutsch");
    EXPECT_EQ(text("lineEditMsg"), "The language changes with OK or Apply.");
    problem = "The translation can't be loaded.";
    inUse = 1033;
    dialog.onUiApply();
    EXPECT_EQ(applied.back().localeId, 1031U);
    EXPECT_EQ(text("lineEditMsg"), problem);
    EXPECT_EQ(language.currentText(), "English") << "the one in use";
    EXPECT_EQ(messageKind(), MessageKind::Warning);
    problem.clear();
    dialog.onUiApply();
    EXPECT_EQ(text("lineEditMsg"), "The options were applied.");
    dialog.reject();
    show(dialog.options());
    EXPECT_EQ(text("lineEditMsg"), "") << "it is over";
}

TEST_F(OptionsDialog, TakesNoOutputFolderThatMeansNone)
{
    show();
    toggle(child(dialog, "checkUseOutputDir"));
    QWidget& folder = child(dialog, "editOutputDir");
    for (const char* none : {"some/folder", "~other/x", "sftp://host/x"}) {
        write(folder, none);
        dialog.onUiOk();
        dialog.onUiApply();
        EXPECT_TRUE(dialog.isVisible() && applied.empty()) << none;
        EXPECT_EQ(messageKind(), MessageKind::Error);
        EXPECT_EQ(QApplication::focusWidget(), &folder);
        child<QTabWidget>(dialog, "tabs").setCurrentIndex(1);
        EXPECT_EQ(text("lineEditMsg"), "The default output folder must be an absolute path.");
    }
    write(folder, " ~/x");
    dialog.onUiApply();
    EXPECT_EQ(text("editOutputDir"), QDir::homePath() + "/x");
    EXPECT_EQ(applied.back().outputDirPath, QDir::homePath() + "/x");
    write(folder, "file:///a%20b");
    dialog.onUiOk();
    EXPECT_EQ(dialog.options().outputDirPath, "/a b");
}

TEST_F(OptionsDialog, LanguagesAndAlgorithmsThatAreNotOffered)
{
    SAppOptions options;
    options.localeId = 1049;
    options.setDefaultAlgorithm({10, 7});
    show(options);
    dialog.onUiOk();
    EXPECT_EQ(dialog.options().localeId, 1049U) << "the language stays";
    EXPECT_EQ(dialog.options().defaultAlgorithm(), thisapp::AlgSelection());

    show();
    auto& algorithm = child<QComboBox>(dialog, "comboAlgorithm");
    QTest::keyClick(&algorithm, Qt::Key_Down);
    EXPECT_EQ(algorithm.currentText(), "Alg-3") << "the disabled one is passed over";
    EXPECT_TRUE(child(dialog, "buttonApply").isEnabled());
    dialog.onUiApply();
    QTest::keyClick(&child(dialog, "comboLevel"), Qt::Key_Down);
    EXPECT_TRUE(child(dialog, "buttonApply").isEnabled()) << "after each change";
}

TEST_F(OptionsDialog, ChoosesTheOutputFolder)
{
    const QTemporaryDir folder;
    SAppOptions options;
    options.useDefaultOutputDir = true;
    options.outputDirPath = "/usr";
    show(options);
    const auto browse = [this](auto answer) {
        whenModal([answer](QWidget& chooser) {
            EXPECT_EQ(chooser.windowTitle(), "Default output directory");
            EXPECT_EQ(dynamic_cast<QFileDialog&>(chooser).directory().path(), "/usr");
            answer(chooser);
        });
        QTest::mouseClick(&child(dialog, "buttonBrowse"), Qt::LeftButton);
        return text("editOutputDir");
    };
    EXPECT_EQ(browse([](QWidget& chooser) { QTest::keyClick(&chooser, Qt::Key_Escape); }), "/usr");
    EXPECT_EQ(browse([&folder](QWidget& chooser) {
                  auto& name = child<QLineEdit>(chooser, "fileNameEdit");
                  name.setText(folder.path());
                  QTest::keyClick(&name, Qt::Key_Return);
              }),
              folder.path());
}

TEST_F(OptionsDialog, ViewsTheLogFile)
{
    const QTemporaryDir folder;
    QFile log(folder.filePath("quillet.log"));
    show();
    press(Qt::Key_V, Qt::AltModifier);
    dialog.setLogFilePath(log.fileName());
    EXPECT_EQ(text("editLogFile"), log.fileName());
    ASSERT_TRUE(tabTo(child(dialog, "labelViewLog")));
    press(Qt::Key_Return);
    EXPECT_TRUE(text("lineEditMsg").startsWith("The log file can't be read: ")) << text("lineEditMsg");

    ASSERT_TRUE(log.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    log.write("<i>first</i>\n");
    QString shown;
    whenModal([&](QWidget& viewer) {
        log.write("second\n");
        QTest::keyClick(&viewer, Qt::Key_F5);
        shown = child<QPlainTextEdit>(viewer, "text").toPlainText();
        QTest::keyClick(&viewer, Qt::Key_Escape);
    });
    press(Qt::Key_Return);
    EXPECT_EQ(shown, "<i>first</i>\nsecond\n");
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(OptionsDialog, EveryControlHasAMnemonicOfItsOwnOnItsTab)
{
    show();
    auto& tabs = child<QTabWidget>(dialog, "tabs");
    for (int tab = 0; tab < tabs.count(); ++tab) {
        tabs.setCurrentIndex(tab);
        std::set<QString> seen;
        const auto check = [&](const QString& label) {
            const QString key = QKeySequence::mnemonic(label).toString();
            // The link has none, and the letters of the others are all taken.
            EXPECT_NE(key.isEmpty(),
                      label != "Shortcut keys:" && label != "Restore defaults" && !label.startsWith("<a "))
                << label;
            EXPECT_TRUE(key.isEmpty() || seen.insert(key).second) << tab << ": " << label;
        };
        for (int i = 0; i < tabs.count(); ++i)
            check(tabs.tabText(i));
        for (const auto* widget : dialog.findChildren<QWidget*>())
            if (widget->isVisible() && (widget->inherits("QAbstractButton") || widget->inherits("QLabel")))
                check(widget->property("text").toString());
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
    for (const auto direction : {Qt::RightToLeft, Qt::LeftToRight}) {
        QApplication::setLayoutDirection(direction);
        EXPECT_TRUE(comesTrue([&] {
            return direction == Qt::LeftToRight ? left("labelOutputDir") > left("checkUseOutputDir")
                                                : left("labelOutputDir") > left("editOutputDir") &&
                                                      right("labelOutputDir") < right("checkUseOutputDir");
        }));
    }
}

TEST_F(OptionsDialog, FollowsAChangeOfTheLanguage)
{
    show();
    Capitals translator;
    QApplication::installTranslator(&translator);
    QApplication::processEvents();
    EXPECT_EQ(child<QGroupBox>(child(dialog, "frameDecryption"), "group").title(), "NAME OF DECRYPTED FILE");
    EXPECT_EQ(child<QCheckBox>(child(dialog, "frameEncryption"), "checkExt").text(), "ADD F&ILE EXTENSION:");
    const auto& table = child<QTableWidget>(dialog, "tableShortcuts");
    EXPECT_EQ(table.item(0, 1)->text(), "START ENCRYPTION");
    EXPECT_EQ(table.horizontalHeaderItem(0)->text(), "SHORTCUT KEY");
    EXPECT_EQ(table.item(1, 0)->text(), "'Ctrl+F8' (Cmd+F8)");
    EXPECT_TRUE(child<QLabel>(dialog, "labelViewLog").text().contains("VIEW LOG FILE"));
    QApplication::removeTranslator(&translator);
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
        ASSERT_TRUE(tabTo(child(dialog, name))) << name;
        EXPECT_FALSE(QApplication::focusWidget()->visibleRegion().isEmpty()) << name << " is out of sight";
    }
    press(Qt::Key_Space);
    press(Qt::Key_Tab);
    type("/out");
    press(Qt::Key_E, Qt::AltModifier);
    press(Qt::Key_Y, Qt::AltModifier);
    press(Qt::Key_D, Qt::AltModifier);
    press(Qt::Key_End);
    EXPECT_TRUE(tabTo(child(dialog, "tableShortcuts")));
    press(Qt::Key_F2);
    EXPECT_EQ(child(dialog, "tableShortcuts").findChild<QLineEdit*>(), nullptr) << "nothing can be edited";

    press(Qt::Key_F, Qt::AltModifier);
    press(Qt::Key_U, Qt::AltModifier);
    press(Qt::Key_Tab);
    type("-s");

    press(Qt::Key_V, Qt::AltModifier);
    press(Qt::Key_L, Qt::AltModifier);
    press(Qt::Key_End);
    press(Qt::Key_U, Qt::AltModifier);
    press(Qt::Key_A, Qt::AltModifier);
    const SAppOptions last = dialog.options();
    EXPECT_TRUE(tabTo(child(dialog, "buttonCancel")));
    EXPECT_TRUE(tabTo(child(dialog, "checkUseLogFile")));
    press(Qt::Key_Return);
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
