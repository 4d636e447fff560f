#pragma once

#include <QFrame>

class CElidedLabel;
class CQueueModel;
class QPushButton;
class QTreeView;

namespace thisapp {
class FileQueue;
}

/// Shows the files that are processed in one go, with buttons to add some and to empty the list. Delete
/// takes the selected ones out.
class CQueueList final : public QFrame
{
    Q_OBJECT

public:
    /// The queue must outlive the list.
    explicit CQueueList(const thisapp::FileQueue& queue, QWidget* parent = nullptr);

    /// The files are others than before.
    void refresh();
    /// The files' states have changed; that one is running, and brought into sight.
    void refreshStates(int running);
    /// Brings it into sight.
    void show(int row);
    void setRunning(bool running);
    /// Files hover over it.
    void setHighlighted(bool highlighted);

signals:
    void notifyAdd();
    void notifyClear();
    /// The user looks at that one.
    void notifyCurrent(int row);
    /// In descending order.
    void notifyRemove(const QList<int>& rows);

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void retranslate();
    void refreshSummary();
    void shareWidth();
    void removeSelected();

    const thisapp::FileQueue& m_queue;
    CQueueModel* m_model;
    CElidedLabel* m_summary;
    QPushButton* m_add;
    QPushButton* m_clear;
    QTreeView* m_view;
    bool m_isRunning = false;
    bool m_isHighlighted = false;
};
