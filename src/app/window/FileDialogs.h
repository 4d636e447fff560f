#pragma once

#include <QString>
#include <QStringList>

class QWidget;

class CDiskWork;

/// The platform's file dialogs over all files. They begin in the folder of the current file, if the disk
/// tells quickly that there is one, and give nothing when the user cancels.
namespace thisapp {

/// Any number of them.
QStringList askFilesToOpen(QWidget* parent, CDiskWork& disk, const QString& title, const QString& current);
QString askFileToOpen(QWidget* parent, CDiskWork& disk, const QString& title, const QString& current);
/// Doesn't ask before an existing file is chosen: the job decides about that.
QString askFileToSave(QWidget* parent, CDiskWork& disk, const QString& title, const QString& current);

} // namespace thisapp
