#include "app/window/FileDialogs.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>

namespace thisapp {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(FileDialogs)
};

/// Shown without its last part, which is what counts: "*.*" would hide names without a dot.
QString allFiles()
{
    return Text::tr("All files") + QStringLiteral(" (*.*)") + QStringLiteral(" (*)");
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

QString run(QWidget* parent, const QString& title, const QString& current, QFileDialog::AcceptMode mode)
{
    QFileDialog dialog(parent, title, QString(), allFiles());
    dialog.setAcceptMode(mode);
    dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    const QFileInfo file(current);
    if (!current.isEmpty() && file.absoluteDir().exists())
        dialog.setDirectory(file.absoluteDir());
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return dialog.selectedFiles().value(0);
}

} // namespace

QString askFileToOpen(QWidget* parent, const QString& title, const QString& current)
{
    return withoutScheme(run(parent, title, current, QFileDialog::AcceptOpen));
}

QString askFileToSave(QWidget* parent, const QString& title, const QString& current)
{
    return run(parent, title, current, QFileDialog::AcceptSave);
}

} // namespace thisapp
