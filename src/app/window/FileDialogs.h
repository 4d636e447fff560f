#pragma once

#include <QString>

class QWidget;

/// The platform's file dialogs over all files. They give an empty text when the user cancels.
namespace thisapp {

QString askFileToOpen(QWidget* parent, const QString& title, const QString& current);
/// Doesn't ask before an existing file is chosen: the job decides about that.
QString askFileToSave(QWidget* parent, const QString& title, const QString& current);

} // namespace thisapp
