#include "app/widgets/CDragDropFrame.h"

#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QDropEvent>

CDragDropFrame::CDragDropFrame(QWidget* parent) : QFrame(parent)
{
    setAcceptDrops(true);
}

void CDragDropFrame::dragEnterEvent(QDragEnterEvent* event)
{
    if (thisapp::acceptFiles(*event))
        emit notifyDragOver(true);
}

void CDragDropFrame::dragMoveEvent(QDragMoveEvent* event)
{
    thisapp::keepFiles(*event);
}

void CDragDropFrame::dragLeaveEvent(QDragLeaveEvent* event)
{
    emit notifyDragOver(false);
    QFrame::dragLeaveEvent(event);
}

void CDragDropFrame::dropEvent(QDropEvent* event)
{
    emit notifyDragOver(false);
    thisapp::dropFiles(*event, m_target);
}
