#include "ui/options/COptionsDialog.h"

#include "common/settings/IAppOptionsChanged.h"
#include "support/ChangedOptions.h"
#include "ui/FakeAlgProvider.h"
#include "ui/Widgets.h"

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
    for (const SAppOptions& options : {SAppOptions(), test::changedOptions()}) {
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
    }
}

TEST_F(OptionsDialog, ApplyHandsOverAndCancelKeepsThat)
{
    QWidget& salt = child(dialog, "checkSalt");
    show();
    toggle(salt);
    toggle(child(dialog, "buttonApply"));
    ASSERT_EQ(applied.size(), 1U);
    EXPECT_TRUE(applied[0].useSalt);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(text("lineEditMsg"), "The options were applied.");
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
    show();
    EXPECT_EQ(encSample(), "MyFile.txt.enc");
    EXPECT_EQ(decSample(), "MyFile.txt.dec");
    write(inFrame("frameEncryption", "editExt"), "q");
    EXPECT_EQ(encSample(), "MyFile.txt.q");
    toggle(inFrame("frameEncryption", "checkExt"));
    EXPECT_EQ(encSample(), "MyFile.txt");
    EXPECT_EQ(text("lineEditMsg"), "Encrypted files would get the names of their input files.");
    toggle(inFrame("frameEncryption", "checkDate"));
    EXPECT_EQ(encSample(), "MyFile" + date + ".txt");
    EXPECT_EQ(text("lineEditMsg"), "");
    toggle(inFrame("frameEncryption", "checkPrefix"));
    write(inFrame("frameEncryption", "editPrefix"), "<b>/\\x");
    EXPECT_EQ(encSample(), "<b>xMyFile" + date + ".txt") << "separators are not accepted";
    toggle(inFrame("frameDecryption", "checkSuffix"));
    write(inFrame("frameDecryption", "editSuffix"), "-y");
    write(inFrame("frameDecryption", "editExt"), "..plain ");
    EXPECT_EQ(decSample(), "MyFile-y.txt.plain");
    dialog.onUiOk();
    EXPECT_EQ(dialog.options().decFileNameExt, "plain");
}

TEST_F(OptionsDialog, WarnsOfNamesThatCannotWork)
{
    SAppOptions options;
    options.decFileNameExt = "ENC";
    show(options);
    EXPECT_EQ(text("lineEditMsg"), "Decrypted files would get the names of their input files.");
    toggle(child(dialog, "checkUseOutputDir"));
    EXPECT_EQ(text("lineEditMsg"), "No default output folder is given: files go beside their input.");
    write(child(dialog, "editOutputDir"), " /tmp ");
    EXPECT_EQ(text("lineEditMsg"), "");
    QWidget& ext = inFrame("frameEncryption", "editExt");
    for (const auto& [typed, warning] :
         {std::pair("a.enc", "Files are not recognised by an extension with a dot inside."),
          {"e?c", "Windows and most memory sticks take no names with one of <>:\"|?*"},
          {"e", ""}}) {
        write(ext, typed);
        EXPECT_EQ(text("lineEditMsg"), warning);
    }
    write(ext, QByteArray(255, 'x').constData());
    EXPECT_EQ(text("lineEditMsg"), "File names would become longer than a file system takes.");
    dialog.onUiOk();
    EXPECT_EQ(dialog.options().outputDirPath, "/tmp");
}

TEST_F(OptionsDialog, TellsWhatIsNotInEffect)
{
    dialog.setProblem("There is no log file.");
    show();
    EXPECT_EQ(text("lineEditMsg"), "There is no log file.");
    auto& language = child<QComboBox>(dialog, "comboLanguage");
    QTest::keyClick(&language, Qt::Key_Up);
    EXPECT_EQ(language.currentText(), "Deutsch");
    problem = "The translation can't be loaded.";
    inUse = 1033;
    dialog.onUiApply();
    EXPECT_EQ(applied.back().localeId, 1031U);
    EXPECT_EQ(text("lineEditMsg"), problem);
    EXPECT_EQ(language.currentText(), "English") << "the one in use";
    problem.clear();
    dialog.onUiApply();
    EXPECT_EQ(text("lineEditMsg"), "The options were applied.");
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
}

TEST_F(OptionsDialog, ChoosesTheOutputFolder)
{
    const QTemporaryDir folder;
    SAppOptions options;
    options.useDefaultOutputDir = true;
    options.outputDirPath = "/before";
    show(options);
    const auto browse = [this](auto answer) {
        whenModal([answer](QWidget& chooser) {
            EXPECT_EQ(chooser.windowTitle(), "Default output directory");
            answer(chooser);
        });
        QTest::mouseClick(&child(dialog, "buttonBrowse"), Qt::LeftButton);
        return text("editOutputDir");
    };
    EXPECT_EQ(browse([](QWidget& chooser) { QTest::keyClick(&chooser, Qt::Key_Escape); }), "/before");
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

TEST_F(OptionsDialog, FollowsAChangeOfTheLanguage)
{
    show();
    Capitals translator;
    QApplication::installTranslator(&translator);
    QApplication::processEvents();
    EXPECT_EQ(child<QGroupBox>(child(dialog, "frameDecryption"), "group").title(), "NAME OF DECRYPTED FILE");
    EXPECT_EQ(child<QCheckBox>(child(dialog, "frameEncryption"), "checkExt").text(), "ADD F&ILE EXTENSION:");
    EXPECT_EQ(child<QTableWidget>(dialog, "tableShortcuts").item(0, 1)->text(), "START ENCRYPTION");
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
