// Paints every dialog into a PNG: dialog_gallery FOLDER [--dark]. QT_SCALE_FACTOR=2 doubles the scale.
#include "lib/settings/SAppOptions.h"
#include "ui/FakeAlgProvider.h"
#include "ui/info/CAboutDialog.h"
#include "ui/info/CTextViewDialog.h"
#include "ui/info/CkeyboardShortcutInfoDialog.h"
#include "ui/options/COptionsDialog.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QTabWidget>

namespace {

QDir folder;

void grab(QWidget& dialog, const QString& name)
{
    dialog.show();
    for (int i = 0; i < 10; ++i)
        QApplication::processEvents(QEventLoop::AllEvents, 20);
    dialog.grab().save(folder.filePath(name + ".png"));
}

QPalette darkPalette()
{
    QPalette palette(QColor(0x35, 0x35, 0x35), QColor(0x2b, 0x2b, 0x2b));
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, QColor(0xee, 0xee, 0xee));
    palette.setColor(QPalette::Base, QColor(0x23, 0x23, 0x23));
    palette.setColor(QPalette::AlternateBase, QColor(0x2e, 0x2e, 0x2e));
    palette.setColor(QPalette::ToolTipBase, QColor(0x35, 0x35, 0x35));
    palette.setColor(QPalette::Button, QColor(0x35, 0x35, 0x35));
    palette.setColor(QPalette::Link, QColor(0x6c, 0xb4, 0xff));
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x82, 0xda));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x80, 0x80, 0x80));
    return palette;
}

void optionsDialog()
{
    COptionsDialog dialog;
    const FakeAlgProvider provider;
    dialog.setAlgProvider(provider);
    dialog.setLanguages({{1033, "English"}, {1031, "Deutsch"}, {1049, "Русский"}});
    dialog.setLogFilePath("/home/user/.local/state/Tessaly/Quillet/quillet.log");
    thisapp::SAppOptions options;
    options.encFileNameAddDate = true;
    dialog.setOptions(options);
    auto* tabs = dialog.findChild<QTabWidget*>();
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        grab(dialog, QString("options-%1").arg(tab + 1));
    }
    tabs->setCurrentIndex(0);
    dialog.findChild<QCheckBox*>("checkUseOutputDir")->setChecked(true);
    dialog.resize(400, 300);
    grab(dialog, "options-small");
}

void shortcutDialog()
{
    CkeyboardShortcutInfoDialog dialog;
    grab(dialog, "shortcuts");
}

void aboutDialog()
{
    CAboutDialog dialog;
    grab(dialog, "about");
}

void textViewDialog()
{
    CTextViewDialog dialog;
    dialog.setWindowTitle("Log file");
    dialog.setSource([] {
        const QString line = "[2024.03.05 14:07:09:042] [INFRM] [04312] [00988] [mainwindow] Line %1\n";
        QString text;
        for (int i = 1; i <= 100; ++i)
            text += line.arg(i);
        return text;
    });
    grab(dialog, "textview");
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName("Quillet");
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 2 || !QDir().mkpath(arguments[1]))
        return 1;
    folder.setPath(arguments[1]);
    QApplication::setStyle("Fusion");
    if (arguments.contains("--dark"))
        QApplication::setPalette(darkPalette());

    for (const auto picture : {optionsDialog, shortcutDialog, aboutDialog, textViewDialog})
        picture();
    return 0;
}
