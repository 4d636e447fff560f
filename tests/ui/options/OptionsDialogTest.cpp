#include "ui/options/COptionsDialog.h"

#include "lib/settings/IAppOptionsChanged.h"
#include "ui/FakeAlgProvider.h"
#include "ui/info/CTextViewDialog.h"
#include "ui/shortcuts/Shortcuts.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDate>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <set>

namespace {

using thisapp::SAppOptions;

class Receiver final : public thisapp::IAppOptionsChanged
{
public:
    void appOptionsChanged(const SAppOptions& options) override { received.push_back(options); }
    std::vector<SAppOptions> received;
};

class OptionsDialog : public testing::Test
{
protected:
    void SetUp() override
    {
        dialog.setAlgProvider(FakeAlgProvider());
        dialog.setLanguages({{1031, "Deutsch"}, {1033, "English"}});
        dialog.setReceiver(&receiver);
    }

    void show(const SAppOptions& options = {})
    {
        dialog.setOptions(options);
        dialog.show();
        QApplication::setActiveWindow(&dialog);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    }

    void openTab(int index) { dialog.findChild<QTabWidget*>()->setCurrentIndex(index); }

    template <typename T>
    T* find(const char* name, const char* frame = "COptionsDialog") const
    {
        const auto* parent = dialog.objectName() == frame ? &dialog : dialog.findChild<QWidget*>(frame);
        T* found = parent->findChild<T*>(name);
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    QCheckBox* box(const char* name, const char* frame = "COptionsDialog") const
    {
        return find<QCheckBox>(name, frame);
    }
    static void press(QWidget* widget, Qt::Key key = Qt::Key_Space) { QTest::keyClick(widget, key); }
    static void type(QLineEdit* edit, const QString& text)
    {
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, text);
    }
    QString encSample() const { return find<QLineEdit>("editSample", "frameEncryption")->text(); }
    QString decSample() const { return find<QLineEdit>("editSample", "frameDecryption")->text(); }
    QString message() const { return find<QLineEdit>("lineEditMsg")->text(); }

    Receiver receiver;
    COptionsDialog dialog;
};

/// Presses Tab until a widget has the focus; false when it is never reached.
bool tabTo(const QWidget* target)
{
    for (int i = 0; i < 100; ++i) {
        if (QApplication::focusWidget() == target)
            return true;
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    return false;
}

SAppOptions unusual()
{
    SAppOptions options;
    const auto change = [](auto& value) {
        using T = std::decay_t<decltype(value)>;
        if constexpr (std::is_same_v<T, bool>)
            value = !value;
        else if constexpr (std::is_same_v<T, QString>)
            value += "7";
        else
            value = 5;
    };
#define SETTING(Type, Key, member, fallback) change(options.member);
#include "lib/settings/SettingsKeys.def"
    options.localeId = 1031;
    options.setDefaultAlgorithm({1, 3});
    return options;
}

TEST_F(OptionsDialog, ShowsAndReturnsEveryValue)
{
    for (const SAppOptions& options : {SAppOptions(), unusual()}) {
        show(options);
        press(find<QPushButton>("buttonOk"));
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
        EXPECT_EQ(dialog.options(), options);
    }
    EXPECT_TRUE(receiver.received.empty()) << "after OK it is the caller who hands the options on";
}

TEST_F(OptionsDialog, EveryCheckBoxStandsForItsOption)
{
    const struct
    {
        QString text;
        const char* frame;
        bool SAppOptions::*option;
    } rows[] = {
        {"Integrate the program to shell context menu", "frameGeneral",
         &SAppOptions::integrateToShellContextMenu},
        {"Add the programm into \"Send To\" menu", "frameGeneral", &SAppOptions::addToSendMenu},
        {"Show confirm dialog", "frameGeneral", &SAppOptions::showConfirmDialog},
        {"Show password", "frameGeneral", &SAppOptions::showPassword},
        {"Require confirm password", "frameGeneral", &SAppOptions::useConfirmPassword},
        {"Auto delete input file after encryption", "frameGeneral",
         &SAppOptions::deleteSourceFileAfterEncryption},
        {"Show confirm dialog to delete input file after encryption", "frameGeneral",
         &SAppOptions::confirmDeleteSourceFileAfterEncryption},
        {"Set default algorithm at starting of program", "frameGeneral",
         &SAppOptions::useDefaultAlgorithmAtStarting},
        {"Use salt", "frameGeneral", &SAppOptions::useSalt},
        {"Rewrite output file", "frameGeneral", &SAppOptions::rewriteOutputFile},
        {"Use advanced mode to enter key and IV", "frameGeneral", &SAppOptions::showAdvancedPasswordOptions},
        {"Autogenerate output file name", "frameGeneral", &SAppOptions::useOutputFileAutogenerator},
        {"Use default output folder", "frameGeneral", &SAppOptions::useDefaultOutputDir},
        {"Add file extension:", "frameEncryption", &SAppOptions::encFileNameAddExt},
        {"Add suffix:", "frameEncryption", &SAppOptions::encFileNameAddSuffix},
        {"Add prefix:", "frameEncryption", &SAppOptions::encFileNameAddPrefix},
        {"Add date", "frameEncryption", &SAppOptions::encFileNameAddDate},
        {"Add file extension:", "frameDecryption", &SAppOptions::decFileNameAddExt},
        {"Add suffix:", "frameDecryption", &SAppOptions::decFileNameAddSuffix},
        {"Add prefix:", "frameDecryption", &SAppOptions::decFileNameAddPrefix},
        {"Add date", "frameDecryption", &SAppOptions::decFileNameAddDate},
        {"Use log file", "frameAdvanced", &SAppOptions::useLogFile},
    };
    show();
    for (const auto& row : rows) {
        QCheckBox* found = nullptr;
        for (auto* candidate : find<QWidget>(row.frame)->findChildren<QCheckBox*>())
            if (candidate->text().remove('&') == row.text)
                found = candidate;
        ASSERT_NE(found, nullptr) << row.text.toStdString();
        found->toggle();
        SAppOptions expected;
        expected.*row.option = !(expected.*row.option);
        dialog.onUiApply();
        EXPECT_EQ(receiver.received.back(), expected) << row.text.toStdString();
        found->toggle();
    }
}

TEST_F(OptionsDialog, ApplyHandsOverAndCancelKeepsThat)
{
    show();
    press(box("checkSalt"));
    press(find<QPushButton>("buttonApply"));
    ASSERT_EQ(receiver.received.size(), 1U);
    EXPECT_TRUE(receiver.received[0].useSalt);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(message(), "The options were applied.");

    press(box("checkShowPassword"));
    EXPECT_EQ(message(), "") << "it speaks of what is shown";
    press(box("checkSalt"), Qt::Key_Escape);
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(receiver.received.size(), 1U);
    EXPECT_EQ(dialog.options(), receiver.received[0]);

    show(dialog.options());
    EXPECT_TRUE(box("checkSalt")->isChecked());
    EXPECT_FALSE(box("checkShowPassword")->isChecked());
    press(box("checkSalt"));
    dialog.close();
    EXPECT_TRUE(dialog.options().useSalt) << "closing the window cancels";
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

TEST_F(OptionsDialog, DependentControlsFollowTheirCheckBoxes)
{
    struct Row
    {
        const char* frame;
        const char* box;
        std::vector<const char*> dependents;
    };
    std::vector<Row> rows{
        {"frameGeneral", "checkDeleteSource", {"checkConfirmDelete"}},
        {"frameGeneral", "checkUseOutputDir", {"editOutputDir", "buttonBrowse", "labelOutputDir"}}};
    for (const char* frame : {"frameEncryption", "frameDecryption"}) {
        rows.push_back({frame, "checkExt", {"editExt"}});
        rows.push_back({frame, "checkSuffix", {"editSuffix"}});
        rows.push_back({frame, "checkPrefix", {"editPrefix"}});
    }
    for (const SAppOptions& options : {SAppOptions(), unusual()}) {
        show(options);
        for (const Row& row : rows)
            for (const char* name : row.dependents) {
                QCheckBox* check = box(row.box, row.frame);
                const auto* dependent = find<QWidget>(name, row.frame);
                EXPECT_EQ(dependent->isEnabled(), check->isChecked()) << row.frame << ' ' << name;
                press(check);
                EXPECT_EQ(dependent->isEnabled(), check->isChecked()) << row.frame << ' ' << name;
                press(check);
            }
        dialog.reject();
    }
}

TEST_F(OptionsDialog, SamplesFollowEveryChange)
{
    show();
    openTab(1);
    const QString date = QDate::currentDate().toString("_yyyy_MM_dd");
    EXPECT_EQ(encSample(), "MyFile.txt.enc");
    EXPECT_EQ(decSample(), "MyFile.txt.dec");

    type(find<QLineEdit>("editExt", "frameEncryption"), "q");
    EXPECT_EQ(encSample(), "MyFile.txt.q");
    press(box("checkExt", "frameEncryption"));
    EXPECT_EQ(encSample(), "MyFile.txt");
    EXPECT_EQ(message(), "Encrypted files would get the names of their input files.");
    press(box("checkDate", "frameEncryption"));
    EXPECT_EQ(encSample(), "MyFile" + date + ".txt");
    EXPECT_EQ(message(), "");
    press(box("checkPrefix", "frameEncryption"));
    type(find<QLineEdit>("editPrefix", "frameEncryption"), "<b>/\\x");
    EXPECT_EQ(encSample(), "<b>xMyFile" + date + ".txt") << "separators are not accepted";

    press(box("checkSuffix", "frameDecryption"));
    type(find<QLineEdit>("editSuffix", "frameDecryption"), "-y");
    type(find<QLineEdit>("editExt", "frameDecryption"), "..plain ");
    EXPECT_EQ(decSample(), "MyFile-y.txt.plain");
    dialog.onUiOk();
    EXPECT_EQ(dialog.options().decFileNameExt, "plain");
    EXPECT_EQ(dialog.options().encFileNamePrefix, "<b>x");
}

TEST_F(OptionsDialog, WarnsOfNamesThatCannotWork)
{
    SAppOptions options;
    options.decFileNameExt = "ENC";
    show(options);
    EXPECT_EQ(message(), "Decrypted files would get the names of their input files.");
    press(box("checkAutogenerate"));
    EXPECT_EQ(message(), "");
    press(box("checkAutogenerate"));
    press(box("checkUseOutputDir"));
    EXPECT_TRUE(message().startsWith("No default output folder is given")) << message().toStdString();
    type(find<QLineEdit>("editOutputDir"), " /tmp ");
    EXPECT_EQ(message(), "");
    dialog.onUiOk();
    EXPECT_EQ(dialog.options().outputDirPath, "/tmp");
}

TEST_F(OptionsDialog, LanguagesAndAlgorithms)
{
    SAppOptions options;
    options.localeId = 1049;
    options.setDefaultAlgorithm({10, 7});
    show(options);
    auto* language = find<QComboBox>("comboLanguage");
    auto* algorithm = find<QComboBox>("comboAlgorithm");
    EXPECT_EQ(language->currentIndex(), -1);
    EXPECT_EQ(algorithm->currentIndex(), -1);
    dialog.onUiOk();
    EXPECT_EQ(dialog.options().localeId, 1049U) << "a language that isn't offered stays";
    EXPECT_EQ(dialog.options().defaultAlgorithm(), thisapp::AlgSelection()) << "an unknown algorithm is none";

    show();
    EXPECT_EQ(language->currentText(), "English");
    EXPECT_EQ(algorithm->currentText(), "AES-256");
    press(language, Qt::Key_Up);
    EXPECT_EQ(message(), "The language changes with OK or Apply.");
    press(algorithm, Qt::Key_Down);
    EXPECT_EQ(algorithm->currentText(), "Alg-3") << "the disabled one is passed over";
    dialog.onUiOk();
    EXPECT_EQ(dialog.options().localeId, 1031U);
    EXPECT_EQ(dialog.options().defaultAlgorithm(), (thisapp::AlgSelection{1, 3}));
}

TEST_F(OptionsDialog, WheelChangesNoComboBoxWithoutFocus)
{
    show();
    auto* level = find<QComboBox>("comboLevel");
    QWheelEvent wheel(QPointF(5, 5), level->mapToGlobal(QPoint(5, 5)), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(level, &wheel);
    EXPECT_EQ(level->currentIndex(), 0);
}

TEST_F(OptionsDialog, ChoosesTheOutputFolder)
{
    const QTemporaryDir folder;
    SAppOptions options;
    options.useDefaultOutputDir = true;
    options.outputDirPath = "/before";
    show(options);
    const auto browse = [this](auto answer) {
        QString title;
        QTimer::singleShot(0, [&] {
            auto* chooser = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(chooser, nullptr);
            title = chooser->windowTitle();
            answer(*chooser);
        });
        QTest::mouseClick(find<QPushButton>("buttonBrowse"), Qt::LeftButton);
        EXPECT_EQ(title, "Default output directory");
        return find<QLineEdit>("editOutputDir")->text();
    };
    EXPECT_EQ(browse([](QFileDialog& chooser) { press(&chooser, Qt::Key_Escape); }), "/before");
    EXPECT_EQ(browse([&](QFileDialog& chooser) {
                  auto* name = chooser.findChild<QLineEdit*>("fileNameEdit");
                  name->setText(folder.path());
                  press(name, Qt::Key_Return);
              }),
              folder.path());
}

TEST_F(OptionsDialog, ShortcutTableIsReadOnly)
{
    show();
    auto* table = find<QTableWidget>("tableShortcuts");
    const auto shortcuts = thisapp::shortcuts();
    ASSERT_EQ(table->rowCount(), static_cast<int>(shortcuts.size()));
    EXPECT_EQ(table->horizontalHeaderItem(0)->text(), "Shortcut key");
    EXPECT_EQ(table->item(3, 0)->text(), "'Ctrl+F8' (Cmd+F8)");
    EXPECT_EQ(table->item(3, 1)->text(), "Clear entered data");
    EXPECT_EQ(table->viewport()->height(), table->rowViewportPosition(7) + table->rowHeight(7))
        << "shown whole";
    table->setCurrentCell(0, 1);
    for (const Qt::Key key : {Qt::Key_F2, Qt::Key_X})
        press(table, key);
    EXPECT_EQ(table->item(0, 1)->text(), "Start encryption");
    EXPECT_EQ(table->findChild<QLineEdit*>(), nullptr) << "no editor opens";
}

TEST_F(OptionsDialog, ViewsTheLogFile)
{
    const QTemporaryDir folder;
    QFile log(folder.filePath("quillet.log"));
    show();
    openTab(2);
    dialog.setLogFilePath(log.fileName());
    EXPECT_EQ(find<QLineEdit>("editLogFile")->text(), log.fileName());
    auto* link = find<QLabel>("labelViewLog");
    const auto follow = [this, link] {
        dialog.findChild<QTabWidget*>()->setFocus();
        ASSERT_TRUE(tabTo(link));
        press(link, Qt::Key_Return);
    };

    follow();
    EXPECT_TRUE(message().startsWith("The log file can't be read: ")) << message().toStdString();

    ASSERT_TRUE(log.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    log.write("<i>first</i>\n");
    QString shown;
    QTimer::singleShot(0, [&] {
        auto* viewer = qobject_cast<CTextViewDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(viewer, nullptr);
        QApplication::setActiveWindow(viewer);
        log.write("second\n");
        press(viewer, Qt::Key_F5);
        shown = viewer->findChild<QPlainTextEdit*>()->toPlainText();
        press(viewer, Qt::Key_Escape);
    });
    follow();
    EXPECT_EQ(shown, "<i>first</i>\nsecond\n");
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(OptionsDialog, LogLevels)
{
    show(unusual());
    auto* level = find<QComboBox>("comboLevel");
    QStringList names;
    for (int i = 0; i < level->count(); ++i)
        names << level->itemText(i);
    EXPECT_EQ(names.join(' '), "OFF FATAL ERROR WARNING INFORMATION DEBUG TRACE");
    EXPECT_EQ(level->currentText(), "DEBUG");
}

/// The letter that the text's mnemonic names, or nothing.
QString mnemonic(const QString& text)
{
    return QKeySequence::mnemonic(text).toString();
}

TEST_F(OptionsDialog, MnemonicsAreUniqueOnEveryTab)
{
    show();
    auto* tabs = dialog.findChild<QTabWidget*>();
    for (int tab = 0; tab < tabs->count(); ++tab) {
        openTab(tab);
        QStringList texts;
        for (int i = 0; i < tabs->count(); ++i)
            texts << tabs->tabText(i);
        for (const auto* button : dialog.findChildren<QAbstractButton*>())
            if (button->isVisible())
                texts << button->text();
        for (const auto* label : dialog.findChildren<QLabel*>())
            if (label->isVisible() && label->buddy() != nullptr)
                texts << label->text();
        for (const auto* group : dialog.findChildren<QGroupBox*>())
            if (group->isVisible())
                texts << group->title();
        std::set<QString> seen;
        for (const QString& text : texts) {
            const QString key = mnemonic(text);
            EXPECT_TRUE(key.isEmpty() || seen.insert(key).second) << tab << ": " << text.toStdString();
        }
    }
}

TEST_F(OptionsDialog, KeyboardAlone)
{
    const auto typeHere = [](const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); };
    const auto pressHere = [](int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
        // A button shows itself pressed for a moment before it acts on its mnemonic.
        if (modifiers == Qt::AltModifier)
            QTest::qWait(150);
    };
    dialog.resize(400, 300);
    show();
    ASSERT_NE(QApplication::focusWidget(), nullptr);

    // The general tab: each control in the order of the page, scrolled into sight as it gets the focus.
    for (const char* name :
         {"checkContextMenu", "checkSendTo", "comboLanguage", "comboAlgorithm", "checkUseDefaultAlgorithm",
          "checkShowPassword", "checkConfirmPassword", "checkAdvancedMode", "checkSalt", "checkShowConfirm",
          "checkRewrite", "checkAutogenerate", "checkUseOutputDir"}) {
        auto* widget = find<QWidget>(name);
        ASSERT_TRUE(tabTo(widget)) << name;
        EXPECT_FALSE(widget->visibleRegion().isEmpty()) << name << " is out of sight";
    }
    pressHere(Qt::Key_Space);
    pressHere(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), find<QLineEdit>("editOutputDir"));
    typeHere("/out");
    pressHere(Qt::Key_E, Qt::AltModifier);
    EXPECT_TRUE(box("checkDeleteSource")->isChecked());
    pressHere(Qt::Key_Y, Qt::AltModifier);
    EXPECT_FALSE(box("checkConfirmDelete")->isChecked());
    pressHere(Qt::Key_D, Qt::AltModifier);
    pressHere(Qt::Key_End);
    EXPECT_TRUE(tabTo(find<QTableWidget>("tableShortcuts")));
    pressHere(Qt::Key_Tab);
    EXPECT_NE(QApplication::focusWidget(), find<QTableWidget>("tableShortcuts")) << "Tab leaves the table";

    // The file names.
    pressHere(Qt::Key_F, Qt::AltModifier);
    pressHere(Qt::Key_D, Qt::AltModifier);
    EXPECT_TRUE(tabTo(box("checkSuffix", "frameDecryption")));
    pressHere(Qt::Key_Space);
    pressHere(Qt::Key_Tab);
    typeHere("-s");
    EXPECT_EQ(decSample(), "MyFile-s.txt.dec");

    // The log, and home with Enter.
    pressHere(Qt::Key_V, Qt::AltModifier);
    pressHere(Qt::Key_L, Qt::AltModifier);
    pressHere(Qt::Key_End);
    pressHere(Qt::Key_U, Qt::AltModifier);
    EXPECT_TRUE(tabTo(find<QLabel>("labelViewLog")));
    pressHere(Qt::Key_A, Qt::AltModifier);
    ASSERT_EQ(receiver.received.size(), 1U);
    EXPECT_TRUE(tabTo(find<QPushButton>("buttonCancel")));
    EXPECT_TRUE(tabTo(box("checkUseLogFile")));
    pressHere(Qt::Key_Return);
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
    EXPECT_EQ(dialog.options(), expected);
    EXPECT_EQ(receiver.received[0], expected);
}

} // namespace
