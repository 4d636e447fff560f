#pragma once

#include "app/job/Message.h"
#include "io/PathCheck.h"

#include <QList>
#include <QString>
#include <QUrl>

namespace thisapp {

/// What a drop gives to a window that works on one file at a time.
struct DroppedFile
{
    QString path; ///< of the first file of this computer; empty when there is none
    bool othersLeft = false;
};

DroppedFile firstDroppedFile(const QList<QUrl>& urls);

/// What of the drop isn't as the user may expect; empty when there is nothing. `check` says what was
/// dropped as the input.
Message dropMessage(const DroppedFile& drop, tessaly::io::InputCheck check = tessaly::io::InputCheck::Usable);

} // namespace thisapp
