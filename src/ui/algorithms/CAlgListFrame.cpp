#include "ui/algorithms/CAlgListFrame.h"

#include "ui/algorithms/AlgListFiller.h"
#include "ui/style/PlainToolTip.h"
#include "ui_CAlgListFrame.h"

#include <QAction>
#include <QKeyEvent>

using thisapp::AlgSelection;

namespace {

/// Kept while the program runs.
bool recommendedFirst = false;

/// Keeps something current where there is something to see.
void chooseVisible(QListWidget& list)
{
    if (list.currentItem() != nullptr && !list.currentItem()->isHidden())
        return;
    for (int row = 0; row < list.count(); ++row)
        if (const auto& item = *list.item(row); !item.isHidden() && item.flags().testFlag(Qt::ItemIsEnabled))
            return list.setCurrentRow(row);
    list.setCurrentItem(nullptr);
}

} // namespace

CAlgListFrame::CAlgListFrame(QWidget* parent) : QFrame(parent), m_ui(std::make_unique<Ui::CAlgListFrame>())
{
    m_ui->setupUi(this);
    setFocusProxy(m_ui->listWidgetAlg);
    m_ui->lineEditFilter->installEventFilter(this);
    if (auto* clear = m_ui->lineEditFilter->findChild<QAction*>()) // Qt leaves its button without a name
        clear->setText(tr("Clear the filter"));
    thisapp::showDescriptionsAsToolTips(*this);
    m_ui->checkBoxRecommendedFirst->setChecked(recommendedFirst);
    connect(m_ui->lineEditFilter, &QLineEdit::textChanged, this, &CAlgListFrame::onUiFilterChanged);
    connect(m_ui->checkBoxRecommendedFirst, &QCheckBox::toggled, this, &CAlgListFrame::onUiRecommendedFirst);
}

CAlgListFrame::~CAlgListFrame() = default;

void CAlgListFrame::setProvider(const thisapp::ICryptoAlgProvider& provider)
{
    m_provider = &provider;
    m_ui->lineEditFilter->clear();
    thisapp::fillAlgList(*m_ui->listWidgetAlg, provider, recommendedFirst);
}

QListWidget& CAlgListFrame::list() const
{
    return *m_ui->listWidgetAlg;
}

/// Arrow keys go through the list while the filter is typed.
bool CAlgListFrame::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent&>(*event).key();
        if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown)
            return QCoreApplication::sendEvent(m_ui->listWidgetAlg, event);
    }
    return QFrame::eventFilter(watched, event);
}

void CAlgListFrame::onUiFilterChanged(const QString& text)
{
    QListWidget& all = list();
    for (int row = 0; row < all.count(); ++row) {
        QListWidgetItem& item = *all.item(row);
        item.setHidden(
            !item.data(Qt::AccessibleTextRole).toString().contains(text.trimmed(), Qt::CaseInsensitive));
        if (item.isHidden())
            item.setSelected(false);
    }
    if (all.selectionMode() == QAbstractItemView::SingleSelection)
        chooseVisible(all);
}

void CAlgListFrame::onUiRecommendedFirst(bool first)
{
    recommendedFirst = first;
    if (m_provider == nullptr)
        return;
    QListWidget& all = list();
    const auto current =
        all.currentItem() ? all.currentItem()->data(Qt::UserRole).value<AlgSelection>() : AlgSelection();
    thisapp::fillAlgList(all, *m_provider, first);
    onUiFilterChanged(m_ui->lineEditFilter->text());
    if (const int row = thisapp::findAlg(all, current); row >= 0 && !all.item(row)->isHidden())
        all.setCurrentRow(row);
    if (first)
        all.scrollToTop();
}
