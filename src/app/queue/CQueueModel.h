#pragma once

#include <QAbstractTableModel>

namespace thisapp {
class FileQueue;
}

/// A queue as a table: name, size and state of each file.
class CQueueModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Name, Size, State, ColumnCount };
    /// Of the state of a running file: how much of it is done, in per cent. Of any other none.
    static constexpr int PercentRole = Qt::UserRole;

    /// The queue must outlive the model.
    explicit CQueueModel(const thisapp::FileQueue& queue, QObject* parent = nullptr);

    /// The files are others than before.
    void refresh();
    /// The same files in other states.
    void refreshStates();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const thisapp::FileQueue& m_queue;
};
