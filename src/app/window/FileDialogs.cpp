#include "app/window/FileDialogs.h"

#include "ui/disk/CDiskWork.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QScreen>
#include <QWidget>

namespace thisapp {

namespace {

struct DialogText
{
    Q_DECLARE_TR_FUNCTIONS(FileDialogs)
};

/// Shown without its last part, which is what counts: "*.*" would hide names without a dot.
QString allFiles()
{
    return DialogText::tr("All files") + QStringLiteral(" (*.*)") + QStringLiteral(" (*)");
}

/// The path of a chosen file that may come as a URL.
QString withoutScheme(const QString& path)
{
    const QString scheme = QStringLiteral("file:///");
    if (!path.startsWith(scheme))
        return path;
    // Where absolute paths begin with "/", the last one is part of the path.
    return path.mid(scheme.size() - (QDir::rootPath() == QLatin1String("/") ? 1 : 0));
}

/// Empty when there is none, or none that answers.
QString folderOf(const QString& file, CDiskWork& disk)
{
    if (file.isEmpty())
        return {};
    const auto folder = disk.start<QString>([file] {
        const QDir found = QFileInfo(file).absoluteDir();
        return found.exists() ? found.path() : QString();
    });
    return CDiskWork::waitBriefly(folder) ? folder.get() : QString();
}

/// To save in the mode for any file, else to open.
QStringList run(QWidget* parent, const QString& title, const QString& folder, QFileDialog::FileMode mode)
{
    QFileDialog dialog(parent, title, QString(), allFiles());
    dialog.setAcceptMode(mode == QFileDialog::AnyFile ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(mode);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    if (!folder.isEmpty())
        dialog.setDirectory(folder);
    if (const QScreen* screen = parent->screen()) // at a large scale the toolkit's own is larger
        dialog.resize(dialog.sizeHint().boundedTo(screen->availableSize() * 9 / 10));
    if (dialog.exec() != QDialog::Accepted)
        return {};
    QStringList chosen;
    for (const QString& file : dialog.selectedFiles())
        chosen += withoutScheme(file);
    return chosen;
}

} // namespace

QStringList askFilesToOpen(QWidget* parent, CDiskWork& disk, const QString& title, const QString& current)
{
    return run(parent, title, folderOf(current, disk), QFileDialog::ExistingFiles);
}

QString askFileToOpen(QWidget* parent, CDiskWork& disk, const QString& title, const QString& current)
{
    return run(parent, title, folderOf(current, disk), QFileDialog::ExistingFile).value(0);
}

QString askFileToSave(QWidget* parent, CDiskWork& disk, const QString& title, const QString& current)
{
    return run(parent, title, folderOf(current, disk), QFileDialog::AnyFile).value(0);
}

} // namespace thisapp
