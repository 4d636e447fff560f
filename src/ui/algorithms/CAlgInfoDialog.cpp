#include "ui/algorithms/CAlgInfoDialog.h"

#include "crypto/catalogue/AlgInfo.h"
#include "crypto/catalogue/Catalogue.h"
#include "ui/algorithms/AlgInfoReport.h"
#include "ui/algorithms/AlgListFiller.h"
#include "ui/algorithms/ICryptoAlgProvider.h"
#include "ui/style/FitToScreen.h"
#include "ui/style/TextDirection.h"
#include "ui/style/TextSize.h"
#include "ui_CAlgInfoDialog.h"

#include <QListWidget>
#include <QShowEvent>
#include <chrono>
#include <utility>

using thisapp::AlgSelection;

namespace {

/// Lets a drag over many items print once.
constexpr std::chrono::milliseconds PrintDelay{150};

/// All zero for another library's algorithm.
tessaly::crypto::AlgRecord recordOf(const AlgSelection& selection)
{
    if (selection.library != tessaly::crypto::CryptoPPLibraryId)
        return {};
    return tessaly::crypto::AlgInfo().record(selection.algorithm);
}

} // namespace

CAlgInfoDialog::CAlgInfoDialog(QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::CAlgInfoDialog>())
{
    m_ui->setupUi(this);
    m_ui->frameList->list().setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_ui->splitterPanes->setStretchFactor(1, 1);
    m_ui->plainTextEditInfo->setMinimumSize(thisapp::textSize(*this, 24, 4));
    m_timer.setSingleShot(true);
    m_timer.setInterval(PrintDelay);
    connect(&m_timer, &QTimer::timeout, this, &CAlgInfoDialog::onUiPrintAlgInfo);
    connect(&m_ui->frameList->list(), &QListWidget::itemSelectionChanged, this,
            &CAlgInfoDialog::onUiItemSelectionChanged);
    connect(m_ui->buttonClose, &QPushButton::clicked, this, &QDialog::accept);
}

CAlgInfoDialog::~CAlgInfoDialog() = default;

void CAlgInfoDialog::setProvider(const thisapp::ICryptoAlgProvider& provider)
{
    m_provider = &provider;
    m_fillOnNextShow.set(true);
}

void CAlgInfoDialog::setSelection(const AlgSelection& selection)
{
    m_selection = selection;
    m_fillOnNextShow.set(true);
}

void CAlgInfoDialog::showEvent(QShowEvent* event)
{
    if (m_provider && m_fillOnNextShow.with([](bool& flag) { return std::exchange(flag, false); }))
        fill();
    if (!event->spontaneous()) {
        const int listWidth = m_ui->frameList->sizeHint().width();
        const QSize text = thisapp::textSize(*this, 60, 24);
        m_ui->splitterPanes->setSizes({listWidth, text.width()});
        const QMargins margins = layout()->contentsMargins();
        thisapp::fitToScreen(*this, {listWidth + m_ui->splitterPanes->handleWidth() + text.width() +
                                         margins.left() + margins.right(),
                                     text.height()});
    }
    QDialog::showEvent(event);
}

void CAlgInfoDialog::fill()
{
    m_ui->frameList->setProvider(*m_provider);
    QListWidget& list = m_ui->frameList->list();
    if (const int row = thisapp::findAlg(list, m_selection); row >= 0) {
        list.setCurrentRow(row);
        list.scrollToItem(list.currentItem(), QAbstractItemView::PositionAtCenter);
    }
    list.setFocus();
    onUiPrintAlgInfo();
}

void CAlgInfoDialog::onUiItemSelectionChanged()
{
    m_timer.start();
}

void CAlgInfoDialog::onUiPrintAlgInfo()
{
    QString report;
    const QListWidget& list = m_ui->frameList->list();
    for (int row = 0; row < list.count(); ++row) {
        const QListWidgetItem& item = *list.item(row);
        if (!item.isSelected())
            continue;
        const auto selection = item.data(Qt::UserRole).value<AlgSelection>();
        report += thisapp::algInfoReport(m_provider->displayName(selection), recordOf(selection));
    }
    m_ui->plainTextEditInfo->setPlainText(report);
    thisapp::followLanguageSide(*m_ui->plainTextEditInfo->document());
}
