#include "app/widgets/FilesDrop.h"

#include "app/widgets/IFilesDragDropEvent.h"

#include <QDragMoveEvent>
#include <QDropEvent>
#include <QMimeData>

namespace thisapp {

bool acceptFiles(QDragMoveEvent& event)
{
    const bool hasFiles = event.mimeData()->hasUrls() && !event.mimeData()->urls().isEmpty();
    if (hasFiles)
        event.acceptProposedAction();
    else
        event.ignore();
    return hasFiles;
}

void dropFiles(QDropEvent& event, const FilesDropTarget& target)
{
    if (!event.mimeData()->hasUrls() || target.receiver == nullptr) {
        event.ignore();
        return;
    }
    // The files are only read, whatever the source proposes: a "move" would make it delete them.
    event.setDropAction(Qt::CopyAction);
    event.accept();
    target.receiver->filesDropped(target.id, event.mimeData()->urls());
}

} // namespace thisapp
