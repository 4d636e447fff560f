#include "app/queue/CQueueModel.h"

#include "app/queue/FileQueue.h"
#include "app/widgets/SymbolicIcon.h"
#include "common/path/PathText.h"
#include "ui/style/MessageStyle.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QLocale>
#include <QPalette>

#include <algorithm>

using namespace thisapp;

namespace {

int percentOf(const QueueEntry& entry)
{
    return entry.file.size > 0
               ? static_cast<int>(100 * std::min(entry.processed, entry.file.size) / entry.file.size)
               : 0;
}

QString withReason(const QString& state, const QueueEntry& entry)
{
    return entry.reason ? QStringLiteral("%1: %2").arg(state, entry.reason()) : state;
}

QString stateText(const QueueEntry& entry)
{
    switch (entry.state) {
    case EntryState::Waiting:
        break;
    case EntryState::Running:
        return CQueueModel::tr("Running, %1%").arg(QLocale().toString(percentOf(entry)));
    case EntryState::Done:
        return withReason(CQueueModel::tr("Done"), entry);
    case EntryState::Failed:
        return withReason(CQueueModel::tr("Failed"), entry);
    case EntryState::Skipped:
        return withReason(CQueueModel::tr("Skipped"), entry);
    }
    return CQueueModel::tr("Waiting");
}

QVariant stateGlyph(EntryState state)
{
    const auto glyph = [](const char* name, MessageKind kind) {
        const int size = QFontMetrics(QGuiApplication::font()).height();
        return symbolicPixmap(name, size, messageColor(kind, QGuiApplication::palette()),
                              qApp->devicePixelRatio());
    };
    switch (state) {
    case EntryState::Done:
        return glyph("success", MessageKind::Success);
    case EntryState::Failed:
        return glyph("error", MessageKind::Error);
    case EntryState::Skipped:
        return glyph("warning", MessageKind::Warning);
    case EntryState::Waiting:
    case EntryState::Running:
        break;
    }
    QPixmap blank = glyph("success", MessageKind::Plain); // so that all texts begin in line
    blank.fill(Qt::transparent);
    return blank;
}

} // namespace

CQueueModel::CQueueModel(const FileQueue& queue, QObject* parent)
    : QAbstractTableModel(parent), m_queue(queue)
{
}

void CQueueModel::refresh()
{
    beginResetModel();
    endResetModel();
}

void CQueueModel::refreshStates()
{
    emit dataChanged(index(0, State), index(rowCount() - 1, State));
}

int CQueueModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_queue.size());
}

int CQueueModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant CQueueModel::data(const QModelIndex& index, int role) const
{
    const QueueEntry& entry = m_queue.entries()[static_cast<std::size_t>(index.row())];
    if (role == Qt::ToolTipRole) {
        const QString text = index.column() == State ? stateText(entry) : pathText(entry.path);
        return QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped());
    }
    if (role == Qt::DisplayRole)
        switch (index.column()) {
        case Name:
            return pathText(entry.path.filename());
        case Size:
            return QLocale().formattedDataSize(entry.file.size, 1);
        case State:
            return stateText(entry);
        }
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignVCenter | (index.column() == Size ? Qt::AlignRight : Qt::AlignLeft));
    if (role == Qt::SizeHintRole)
        return QSize(0, QFontMetrics(QGuiApplication::font()).height() * 3 / 2);
    if (index.column() == State && role == Qt::DecorationRole)
        return stateGlyph(entry.state);
    if (index.column() == State && role == PercentRole && entry.state == EntryState::Running)
        return percentOf(entry);
    return {};
}

QVariant CQueueModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignVCenter | (section == Size ? Qt::AlignRight : Qt::AlignLeft));
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Name:
        return tr("File");
    case Size:
        return tr("Size");
    default:
        return tr("State");
    }
}
