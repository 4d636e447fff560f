#pragma once

#include "app/job/Message.h"
#include "io/PathCheck.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

namespace thisapp {

/// The paths of those that are on this computer.
QStringList droppedFiles(const QList<QUrl>& urls);

/// What a drop gives to a field for one file.
struct DroppedFile
{
    QString path; ///< empty when there is none
    bool othersLeft = false;
};

/// What of the drop isn't as the user may expect; empty when there is nothing. `check` says what was
/// dropped as the input.
Message dropMessage(const DroppedFile& drop, tessaly::io::InputCheck check = tessaly::io::InputCheck::Usable);

} // namespace thisapp
