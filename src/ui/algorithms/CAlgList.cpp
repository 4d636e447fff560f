#include "ui/algorithms/CAlgList.h"

#include "ui/algorithms/AlgColumns.h"

#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <QStandardItemModel>
#include <numeric>

CAlgList::CAlgList(QWidget* parent) : QListWidget(parent), m_header(new QHeaderView(Qt::Horizontal, this))
{
    setItemDelegate(new thisapp::AlgItemDelegate(this));
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_header->setModel(new QStandardItemModel(0, thisapp::AlgColumnCount, m_header));
    m_header->setSectionResizeMode(QHeaderView::Fixed);
    m_header->setStretchLastSection(true);
    m_header->setMinimumSectionSize(0);
    m_header->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    m_header->setFocusPolicy(Qt::NoFocus);
    m_header->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_header->setAccessibleName(tr("Columns"));
    layOutHeader();
}

/// As wide as its columns; some fifteen rows high.
QSize CAlgList::sizeHint() const
{
    constexpr int Rows = 15;
    const auto widths = thisapp::algColumnWidths(fontMetrics());
    return {std::accumulate(widths.begin(), widths.end(), 2 * frameWidth()) +
                verticalScrollBar()->sizeHint().width(),
            m_header->sizeHint().height() + Rows * fontMetrics().lineSpacing() * 5 / 4};
}

QSize CAlgList::minimumSizeHint() const
{
    constexpr int Rows = 4;
    return {thisapp::algColumnWidths(fontMetrics())[0] + verticalScrollBar()->sizeHint().width(),
            m_header->sizeHint().height() + Rows * fontMetrics().lineSpacing()};
}

void CAlgList::resizeEvent(QResizeEvent* event)
{
    QListWidget::resizeEvent(event);
    layOutHeader();
}

void CAlgList::changeEvent(QEvent* event)
{
    QListWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LanguageChange)
        layOutHeader();
}

/// Without the room for all columns there is none for their titles, either.
void CAlgList::layOutHeader()
{
    static_cast<QStandardItemModel*>(m_header->model())
        ->setHorizontalHeaderLabels(thisapp::algColumnTitles());
    const auto widths = thisapp::algColumnWidths(fontMetrics());
    for (int at = 0; at < thisapp::AlgColumnCount; ++at)
        m_header->resizeSection(at, widths[static_cast<std::size_t>(at)]);
    const QRect inside = contentsRect();
    const bool whole = std::accumulate(widths.begin(), widths.end(), 0) <= viewport()->width();
    const int height = whole ? m_header->sizeHint().height() : 0;
    m_header->setVisible(whole);
    m_header->setGeometry(inside.left(), inside.top(), viewport()->width(), height);
    if (viewportMargins().top() != height)
        setViewportMargins(0, height, 0, 0);
}
