#include "app/widgets/FilesDrop.h"

#include "app/widgets/IFilesDragDropEvent.h"

#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QMimeData>

namespace thisapp {

namespace {

bool carriesFiles(const QDropEvent& event)
{
    return event.mimeData()->hasUrls() && !event.mimeData()->urls().isEmpty();
}

/// Chooses a harmless action if the source allows one.
bool chooseHarmlessAction(QDropEvent& event)
{
    for (const Qt::DropAction action : {Qt::CopyAction, Qt::LinkAction})
        if (event.possibleActions().testFlag(action)) {
            event.setDropAction(action);
            return true;
        }
    return false;
}

} // namespace

bool acceptFiles(QDragEnterEvent& event)
{
    const bool hasFiles = carriesFiles(event);
    if (hasFiles)
        event.acceptProposedAction();
    else
        event.ignore();
    return hasFiles;
}

/// It is the answer to a drag's last move, not to its drop, that the source goes by.
void keepFiles(QDragMoveEvent& event)
{
    event.setAccepted(carriesFiles(event) && chooseHarmlessAction(event));
}

void dropFiles(QDropEvent& event, const FilesDropTarget& target)
{
    event.setAccepted(event.mimeData()->hasUrls() && target.receiver != nullptr);
    if (!event.isAccepted())
        return;
    if (!chooseHarmlessAction(event))
        event.setDropAction(Qt::IgnoreAction);
    target.receiver->filesDropped(target.id, event.mimeData()->urls());
}

} // namespace thisapp
