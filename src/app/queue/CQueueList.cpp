#include "app/queue/CQueueList.h"

#include "app/queue/CEntryDelegate.h"
#include "app/queue/CNameDelegate.h"
#include "app/queue/CQueueModel.h"
#include "app/queue/FileQueue.h"
#include "app/widgets/CElidedLabel.h"
#include "app/widgets/SymbolicIcon.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>

using namespace thisapp;

CQueueList::CQueueList(const FileQueue& queue, QWidget* parent)
    : QFrame(parent),
      m_queue(queue),
      m_model(new CQueueModel(queue, this)),
      m_summary(new CElidedLabel),
      m_add(new QPushButton(symbolicIcon(QStringLiteral("add-file")), QString())),
      m_clear(new QPushButton(symbolicIcon(QStringLiteral("clear")), QString())),
      m_view(new QTreeView)
{
    auto* head = new QHBoxLayout;
    head->addWidget(m_summary, 1);
    head->addWidget(m_add);
    head->addWidget(m_clear);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addLayout(head);
    layout->addWidget(m_view);

    m_add->setObjectName(QStringLiteral("buttonAddToList"));
    m_clear->setObjectName(QStringLiteral("buttonClearList"));
    m_view->setObjectName(QStringLiteral("fileList"));
    m_view->setModel(m_model);
    m_view->setItemDelegateForColumn(CQueueModel::State, new CEntryDelegate(m_view));
    m_view->setItemDelegateForColumn(CQueueModel::Name, new CNameDelegate(m_view));
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAllColumnsShowFocus(true);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setTabKeyNavigation(false);
    m_view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_view->header()->setSectionsMovable(false);
    m_view->header()->setStretchLastSection(true);
    m_view->header()->setMinimumSectionSize(1);
    m_view->setMinimumHeight(5 * fontMetrics().height());
    m_view->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    m_view->installEventFilter(this);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) {
                if (current.isValid())
                    emit notifyCurrent(current.row());
            });
    connect(m_add, &QPushButton::clicked, this, &CQueueList::notifyAdd);
    connect(m_clear, &QPushButton::clicked, this, &CQueueList::notifyClear);
    retranslate();
}

void CQueueList::refresh()
{
    m_model->refresh();
    refreshSummary();
    shareWidth();
}

void CQueueList::refreshStates(int running)
{
    m_model->refreshStates();
    show(running);
}

void CQueueList::show(int row)
{
    m_view->scrollTo(m_model->index(row, 0));
}

void CQueueList::setRunning(bool running)
{
    m_isRunning = running;
    m_add->setEnabled(!running);
    m_clear->setEnabled(!running);
}

void CQueueList::setHighlighted(bool highlighted)
{
    m_isHighlighted = highlighted;
    update();
}

void CQueueList::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    if (event->type() == QEvent::FontChange)
        shareWidth();
}

bool CQueueList::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Delete) {
        removeSelected();
        return true;
    }
    return QFrame::eventFilter(watched, event);
}

void CQueueList::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    shareWidth();
}

void CQueueList::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    if (!m_isHighlighted)
        return;
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 3));
    painter.drawRect(m_view->geometry().adjusted(-1, -1, 1, 1));
}

void CQueueList::retranslate()
{
    m_add->setText(tr("Add files..."));
    m_clear->setText(tr("Clear list"));
    m_add->setToolTip(tr("Choose more files for the list"));
    m_clear->setToolTip(tr("Take all files out of the list; the files themselves stay"));
    m_view->setAccessibleName(tr("Files to encrypt or decrypt"));
    m_view->setAccessibleDescription(tr("Delete takes the selected files out of the list."));
    refresh();
}

void CQueueList::refreshSummary()
{
    m_summary->setWholeText(tr("%Ln files, %1", "", static_cast<int>(m_queue.size()))
                                .arg(QLocale().formattedDataSize(m_queue.totalSize(), 1)));
}

/// The sizes take what they need; names and states share the rest.
void CQueueList::shareWidth()
{
    const int size = m_view->fontMetrics().horizontalAdvance(QStringLiteral("1000.0 MiB")) +
                     2 * m_view->fontMetrics().averageCharWidth();
    const int rest = std::max(0, m_view->viewport()->width() - size);
    m_view->setColumnWidth(CQueueModel::Name, rest * 9 / 20);
    m_view->setColumnWidth(CQueueModel::Size, size);
}

void CQueueList::removeSelected()
{
    if (m_isRunning)
        return;
    QList<int> rows;
    for (const QModelIndex& index : m_view->selectionModel()->selectedRows())
        rows += index.row();
    std::sort(rows.begin(), rows.end(), std::greater<int>());
    if (!rows.isEmpty())
        emit notifyRemove(rows);
}
