#pragma once

#include "app/widgets/FilesDrop.h"

#include <QLineEdit>

/// Takes the path of a file, typed or dropped. Without the focus it elides a long path in the middle;
/// the tool tip has the whole.
class CLineEditForFile : public QLineEdit
{
    Q_OBJECT

public:
    explicit CLineEditForFile(QWidget* parent = nullptr);

    void setDropTarget(const thisapp::FilesDropTarget& target) { m_target = target; }

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private slots:
    void onUiTextChanged(const QString& text);

private:
    thisapp::FilesDropTarget m_target;
};
