#pragma once

#include "app/widgets/FilesDrop.h"

#include <QFrame>

/// A frame that files can be dropped on, anywhere within it.
class CDragDropFrame : public QFrame
{
    Q_OBJECT

public:
    explicit CDragDropFrame(QWidget* parent = nullptr);

    void setDropTarget(const thisapp::FilesDropTarget& target) { m_target = target; }

signals:
    /// Files hover over the frame, or no longer do.
    void notifyDragOver(bool over);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    thisapp::FilesDropTarget m_target;
};
