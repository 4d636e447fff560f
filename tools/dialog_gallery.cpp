// Saves a picture of every dialog: dialog_gallery FOLDER [dark]. QT_SCALE_FACTOR=2 doubles the scale,
// GALLERY_LANGUAGE=de-DE takes another language.
#include "GalleryLanguage.h"
#include "common/settings/SAppOptions.h"
#include "ui/algorithms/CAlgInfoDialog.h"
#include "ui/algorithms/CCryptoAlgProvider.h"
#include "ui/algorithms/CSelectAlgFrame.h"
#include "ui/algorithms/CSetAlgDialog.h"
#include "ui/info/CAboutDialog.h"
#include "ui/info/CTextViewDialog.h"
#include "ui/info/CkeyboardShortcutInfoDialog.h"
#include "ui/options/COptionsDialog.h"
#include "ui/password/CPasswordGeneratorDialog.h"
#include "ui/password/CSetKeyAndIvDialog.h"
#include "ui/password/CSetPasswordDialog.h"
#include "ui/style/TextSize.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPalette>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTest>
#include <QToolTip>

namespace {

const thisapp::CCryptoAlgProvider Provider;

QPalette darkPalette()
{
    QPalette palette(QColor(0x35, 0x35, 0x35));
    palette.setColor(QPalette::Base, QColor(0x23, 0x23, 0x23));
    palette.setColor(QPalette::Link, QColor(0x5a, 0xa9, 0xf0));
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x82, 0xda));
    for (const auto role : {QPalette::ButtonText, QPalette::Text, QPalette::WindowText})
        palette.setColor(QPalette::Disabled, role, QColor(0x80, 0x80, 0x80));
    return palette;
}

class Gallery
{
public:
    Gallery(const QString& folder, const QString& suffix) : m_folder(folder), m_suffix(suffix) {}

    /// Shows the widget, lets act change it and saves its picture.
    template <class Act>
    void save(const QString& name, QWidget& widget, Act act)
    {
        widget.show();
        static_cast<void>(QTest::qWaitForWindowActive(&widget, 500));
        act();
        QTest::qWait(250);
        widget.grab().save(m_folder.filePath(name + m_suffix + QStringLiteral(".png")));
    }
    void save(const QString& name, QWidget& widget)
    {
        save(name, widget, [] {});
    }
    void saveToolTip(const QString& name, QWidget& widget)
    {
        QToolTip::showText(widget.mapToGlobal({}), widget.toolTip(), &widget);
        for (QWidget* window : QApplication::topLevelWidgets()) // at once: it may go at any time
            if (window->inherits("QTipLabel"))
                window->grab().save(m_folder.filePath(name + m_suffix + QStringLiteral(".png")));
        QToolTip::hideText();
    }

private:
    QDir m_folder;
    QString m_suffix;
};

void savePasswordDialogs(Gallery& gallery)
{
    CSetPasswordDialog encrypt;
    encrypt.setSubject(
        QStringLiteral("a rather long name of a file that nobody would type, and that has to be "
                       "shortened in the middle.tar.gz"),
        10);
    encrypt.setAlgorithmName(QStringLiteral("AES-256"));
    gallery.save(QStringLiteral("password_encrypt"), encrypt, [&encrypt] {
        QTest::keyClicks(encrypt.findChild<QLineEdit*>(QStringLiteral("lineEditPassword")),
                         QStringLiteral("tr0ub4dor"));
        QTest::keyClicks(encrypt.findChild<QLineEdit*>(QStringLiteral("lineEditConfirmPassword")),
                         QStringLiteral("TR0UB4DO"));
        encrypt.findChild<QWidget*>(QStringLiteral("labelAdvancedMode"))->setFocus();
    });
    CSetPasswordDialog seal;
    seal.setSubject(QStringLiteral("Accounts 2026.ods"), 0);
    seal.setAlgorithmName(QStringLiteral("AES-256"));
    seal.setSeal(true);
    seal.setUseSalt(true);
    gallery.save(QStringLiteral("password_seal"), seal, [&seal] {
        for (const char* field : {"lineEditPassword", "lineEditConfirmPassword"})
            QTest::keyClicks(seal.findChild<QLineEdit*>(QString::fromLatin1(field)),
                             QStringLiteral("danger grumbly polymer onion"));
    });
    gallery.saveToolTip(QStringLiteral("password_seal_tip"),
                        *seal.findChild<QWidget*>(QStringLiteral("checkBoxSeal")));
    CSetPasswordDialog decrypt;
    decrypt.setEncryptMode(false);
    decrypt.setAlgorithmName(QStringLiteral("AES-256"));
    decrypt.setSubject(QStringLiteral("letter.txt.enc"), 0);
    gallery.save(QStringLiteral("password_decrypt"), decrypt);
    CPasswordGeneratorDialog generator;
    gallery.save(QStringLiteral("password_generator"), generator);
}

void saveKeyDialogs(Gallery& gallery)
{
    CSetKeyAndIvDialog empty;
    empty.setAlgorithmName(QStringLiteral("AES-256"));
    empty.setExpectedLengths(32, 16);
    gallery.save(QStringLiteral("key_empty"), empty);

    CSetKeyAndIvDialog generated;
    generated.setAlgorithmName(QStringLiteral("Threefish-1024"));
    generated.setExpectedLengths(128, 128);
    generated.setSeal(true);
    gallery.save(QStringLiteral("key_generated"), generated, [&generated] {
        generated.findChild<QPushButton*>(QStringLiteral("buttonGenerate"))->click();
    });

    CSetKeyAndIvDialog wrong;
    wrong.setEncryptMode(false);
    wrong.setAlgorithmName(QStringLiteral("AES-256"));
    wrong.setExpectedLengths(32, 16);
    gallery.save(QStringLiteral("key_wrong"), wrong, [&wrong] {
        QTest::keyClicks(wrong.findChild<QPlainTextEdit*>(QStringLiteral("plainTextEditIv")),
                         QStringLiteral("00112233 44556677 8899aabb ccddeeff"));
        QTest::keyClicks(wrong.findChild<QPlainTextEdit*>(QStringLiteral("plainTextEditKey")),
                         QStringLiteral("0123 4567 89ab xyz"));
    });
}

void saveAlgorithmDialogs(Gallery& gallery)
{
    CSelectAlgFrame frame;
    frame.setProvider(Provider);
    gallery.save(QStringLiteral("select_none"), frame);
    frame.setSelection(thisapp::DefaultAlgSelection);
    gallery.save(QStringLiteral("select_frame"), frame);
    auto* box = frame.findChild<QComboBox*>();
    box->setEnabled(false);
    gallery.save(QStringLiteral("select_disabled"), frame);
    box->setEnabled(true);
    frame.resize(thisapp::textSize(frame, 80, 2));
    box->showPopup();
    gallery.save(QStringLiteral("select_popup"), *box->view()->window());
    box->hidePopup();

    CSetAlgDialog choose;
    choose.setProvider(Provider);
    choose.setSelection(thisapp::DefaultAlgSelection);
    gallery.save(QStringLiteral("set_algorithm"), choose);

    CSetAlgDialog weak;
    weak.setProvider(Provider);
    weak.setSelection({1, 600});
    weak.setUseAsDefault(true);
    gallery.save(QStringLiteral("set_algorithm_weak"), weak);

    CAlgInfoDialog info;
    info.setProvider(Provider);
    info.setSelection(thisapp::DefaultAlgSelection);
    gallery.save(QStringLiteral("algorithm_info"), info);
}

/// As many as the program has.
const thisapp::Shortcuts SomeShortcuts{{Qt::Key_F5, "Start encryption"},
                                       {Qt::Key_F6, "Start decryption"},
                                       {Qt::Key_F8, "Stop encryption/decryption"},
                                       {thisapp::ctrl(Qt::Key_F8), "Clear entered data"},
                                       {thisapp::ctrl(Qt::Key_F9), "Open folder with input file"},
                                       {thisapp::ctrl(Qt::Key_F10), "Open folder with output file"},
                                       {thisapp::ctrl(Qt::Key_O), "Add file to encrypt/decrypt"},
                                       {thisapp::ctrl(Qt::Key_N), "Add file to encrypt/decrypt"}};

void saveOptionsDialog(Gallery& gallery)
{
    COptionsDialog dialog;
    dialog.setAlgProvider(Provider);
    dialog.setLanguages({{1031, "Deutsch"}, {1033, "English"}, {1049, "Русский"}});
    dialog.setShortcuts(SomeShortcuts);
    dialog.setLogFilePath(QStringLiteral("/home/user/.local/state/Tessaly/Quillet/quillet.log"));
    thisapp::SAppOptions options;
    options.encFileNameAddDate = true;
    dialog.setOptions(options);
    gallery.save(QStringLiteral("options_general"), dialog);
    auto* scrollBar = dialog.findChild<QScrollArea*>(QStringLiteral("scrollGeneral"))->verticalScrollBar();
    gallery.save(QStringLiteral("options_general_end"), dialog,
                 [=] { scrollBar->setValue(scrollBar->maximum()); });
    dialog.findChild<QCheckBox*>(QStringLiteral("checkUseOutputDir"))->setChecked(true);
    gallery.save(QStringLiteral("options_small"), dialog, [&dialog] { dialog.resize(400, 300); });
    dialog.resize(thisapp::textSize(dialog, 116, 40));
    auto* folder = dialog.findChild<QLineEdit*>(QStringLiteral("editOutputDir"));
    gallery.save(QStringLiteral("options_folder"), dialog, [&dialog, folder] {
        folder->setText(QStringLiteral("sftp://host/folder"));
        dialog.onUiApply();
    });
    folder->setText(QStringLiteral("/home/user/encrypted"));
    dialog.onUiApply();

    auto* tabs = dialog.findChild<QTabWidget*>();
    gallery.save(QStringLiteral("options_names"), dialog, [tabs] { tabs->setCurrentIndex(1); });
    gallery.save(QStringLiteral("options_advanced"), dialog, [tabs] { tabs->setCurrentIndex(2); });
}

void saveOptionsProblem(Gallery& gallery)
{
    COptionsDialog dialog;
    dialog.setLanguages({{1031, "Deutsch"}, {1033, "English"}});
    dialog.setProblem(QStringLiteral(
        "The translation can't be loaded: /usr/share/quillet/translations/quillet_de.ts:3: (error: 5/47)"));
    gallery.save(QStringLiteral("options_problem"), dialog);
}

void saveInfoDialogs(Gallery& gallery)
{
    CkeyboardShortcutInfoDialog shortcuts;
    shortcuts.setShortcuts(SomeShortcuts);
    gallery.save(QStringLiteral("keyboard_shortcuts"), shortcuts);
    CAboutDialog about;
    gallery.save(QStringLiteral("about"), about);

    CTextViewDialog log;
    log.setSource([] {
        const auto line =
            QStringLiteral("[2024.03.05 14:07:09:042] [INFRM] [04312] [00988] [mainwindow] Line %1\n");
        QString text;
        for (int number = 1; number <= 100; ++number)
            text += line.arg(number);
        return text;
    });
    gallery.save(QStringLiteral("text_view"), log);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quillet"));
    const GalleryLanguage language;
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 2)
        return 2;
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const bool dark = arguments.value(2) == QLatin1String("dark");
    if (dark)
        QApplication::setPalette(darkPalette());
    QDir().mkpath(arguments[1]);
    Gallery gallery(arguments[1], dark ? QStringLiteral("_dark") : QString());
    savePasswordDialogs(gallery);
    saveKeyDialogs(gallery);
    saveAlgorithmDialogs(gallery);
    saveOptionsDialog(gallery);
    saveOptionsProblem(gallery);
    saveInfoDialogs(gallery);
    return 0;
}
