#include "ui/options/COptionsDialog.h"

#include "common/settings/IAppOptionsChanged.h"
#include "support/ChangedOptions.h"
#include "ui/FakeAlgProvider.h"
#include "ui/Form.h"

namespace {

using thisapp::SAppOptions;

/// The settings that differ from the defaults, but for the algorithm's: "ShowPassword=true UseSalt=true".
QString changes(const SAppOptions& options)
{
    SAppOptions defaults;
    defaults.setDefaultAlgorithm(options.defaultAlgorithm());
    QStringList found;
#define SETTING(Type, Key, member, fallback)                                                                 \
    if (options.member != defaults.member)                                                                   \
        found += #Key "=" + QVariant(options.member).toString();
#include "common/settings/SettingsKeys.def"
    return found.join(' ');
}

/// The defaults with some changes, "Key=value" each.
SAppOptions changed(const QStringList& keysAndValues)
{
    SAppOptions options;
    for (const QString& change : keysAndValues) {
        const QVariant value = change.section('=', 1);
#define SETTING(Type, Key, member, fallback)                                                                 \
    if (change.startsWith(#Key "="))                                                                         \
        options.member = value.value<Type>();
#include "common/settings/SettingsKeys.def"
    }
    return options;
}

struct OptionsForm : Form<COptionsDialog>, thisapp::IAppOptionsChanged
{
    OptionsForm()
    {
        dialog.setAlgProvider(FakeAlgProvider());
        for (int times = 0; times < 2; ++times)
            dialog.setLanguages({{1031, "Deutsch"}, {1033, "English"}});
        dialog.setShortcuts(
            {{Qt::Key_F5, "Start encryption"}, {thisapp::ctrl(Qt::Key_F8), "Clear entered data"}});
        dialog.setReceiver(this);
        verbs["given"] = [this](const QStringList& row) { show(changed(row.mid(1))); };
        verbs["toggle"] = [this](const QStringList& row) {
            for (const QString& box : row[1].split(' '))
                QTest::keyClick(&child(dialog, box), Qt::Key_Space);
        };
        verbs["tab"] = [](const QStringList& row) {
            for (const QString& name : row[1].split(' '))
                tabTo(name);
        };
        verbs["browse"] = [this](const QStringList& row) { browse(row[1], row[2]); };
        verbs["size"] = [this](const QStringList& row) { dialog.resize(row[1].toInt(), row[2].toInt()); };
        verbs["problem"] = [this](const QStringList& row) { dialog.setProblem(row[1]); };
        verbs["receiver"] = [this](const QStringList& row) {
            problem = row[1];
            inUse = row.value(2);
        };
        outcomes["samples"] = [this] {
            QString both = text("frameEncryption/editSample") + ' ' + text("frameDecryption/editSample");
            return both.replace(QDate::currentDate().toString("yyyy_MM_dd"), "TODAY");
        };
        outcomes["applied"] = [this] { return applied.join(", "); };
        outcomes["taken"] = [this] { return changes(dialog.options()); };
        outcomes["algorithm"] = [this] {
            return QString::number(dialog.options().defaultAlgorithm().algorithm);
        };
        outcomes["folder"] = [this] { return text("editOutputDir").replace(QDir::homePath(), "HOME"); };
    }
    thisapp::SAppliedOptions appOptionsChanged(const SAppOptions& options) override
    {
        applied += changes(options).replace(QDir::homePath(), "HOME");
        return {problem, inUse.isEmpty() ? options.localeId : inUse.toUInt()};
    }

    void show(const SAppOptions& options = {})
    {
        dialog.setOptions(options);
        reopen();
    }
    /// Presses Tab until the widget has the focus, and is in sight then.
    static void tabTo(const QString& name)
    {
        for (int i = 0; i < 100 && focusName() != name; ++i)
            ::press("Tab");
        ASSERT_EQ(focusName(), name);
        EXPECT_FALSE(QApplication::focusWidget()->visibleRegion().isEmpty()) << name;
    }
    /// Types a folder's path where one can be chosen, and presses the key there.
    void browse(const QString& path, const QString& key)
    {
        whenModal([&](QWidget& chooser) {
            EXPECT_EQ(chooser.windowTitle(), "Default output directory");
            EXPECT_EQ(dynamic_cast<QFileDialog&>(chooser).directory().path(), text("editOutputDir"));
            child<QLineEdit>(chooser, "fileNameEdit").setText(path);
            child(chooser, "fileNameEdit").setFocus();
            ::press(key);
        });
        child<QAbstractButton>(dialog, "buttonBrowse").click();
    }

    QStringList applied;
    QString problem, inUse; ///< what the receiver answers
};

struct OptionsDialog : testing::Test, OptionsForm
{
};

TEST_F(OptionsDialog, TakesAppliesAndRefusesAsItSays)
{
    walk<OptionsForm>("ui/options_dialog.txt");
}

TEST_F(OptionsDialog, ShowsAndReturnsEveryValue)
{
    for (const SAppOptions& options : test::eachChanged()) {
        show(options);
        press("Return");
        EXPECT_EQ(seen("ended"), "accepted");
        EXPECT_EQ(changes(dialog.options()), changes(options));
        EXPECT_EQ(seen("algorithm"), "0") << "what the window has selected stays";
    }
    EXPECT_TRUE(applied.empty()) << "after OK it is the caller who hands the options on";
    EXPECT_EQ(text("comboLevel"), "DEBUG");

    show(test::changedOptions());
    child<QPushButton>(dialog, "buttonRestore").click();
    dialog.onUiOk();
    EXPECT_EQ(seen("taken"), "LocaleId=1031");
    EXPECT_EQ(seen("algorithm"), "252") << "as it is another one";
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
        for (const QString& change : {QString(row[2].c_str()), QString()}) {
            (*found)->toggle();
            EXPECT_TRUE(isEnabled("buttonApply"));
            dialog.onUiApply();
            EXPECT_EQ(applied.back().section('=', 0, 0), change);
            EXPECT_EQ(applied.back().count('='), change.isEmpty() ? 0 : 1);
            EXPECT_FALSE(isEnabled("buttonApply"));
        }
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
    tabTo("labelViewLog");
    press("Return");
    EXPECT_TRUE(message().startsWith("Warning: The log file can't be read: ")) << message();

    ASSERT_TRUE(log.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    log.write("<i>first</i>\n");
    QString shown;
    whenModal([&](QWidget& viewer) {
        log.write("second\n");
        ::press("F5");
        shown = ::text(viewer, "text");
        ::press("Esc");
    });
    press("Return");
    EXPECT_EQ(shown, "<i>first</i>\nsecond\n");
    EXPECT_TRUE(dialog.isVisible());
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

} // namespace
