#include "ui/algorithms/CSetAlgDialog.h"

#include "ui/algorithms/AlgAdviceText.h"
#include "ui/algorithms/AlgListFiller.h"
#include "ui/algorithms/ICryptoAlgProvider.h"
#include "ui/style/FitToScreen.h"
#include "ui/style/PlainToolTip.h"
#include "ui_CSetAlgDialog.h"

#include <QListWidget>
#include <QShowEvent>
#include <utility>

using thisapp::AlgSelection;

namespace {

/// The first row, unless it can't be chosen; -1 for none.
int firstEnabledRow(const QListWidget& list)
{
    for (int row = 0; row < list.count(); ++row)
        if (list.item(row)->flags().testFlag(Qt::ItemIsEnabled))
            return row;
    return -1;
}

} // namespace

CSetAlgDialog::CSetAlgDialog(QWidget* parent) : QDialog(parent), m_ui(std::make_unique<Ui::CSetAlgDialog>())
{
    m_ui->setupUi(this);
    constexpr int AdviceLines = 3; // the list shall not change its height with the advice
    m_ui->labelAdvice->setMinimumHeight(fontMetrics().lineSpacing() * AdviceLines);
    thisapp::showDescriptionsAsToolTips(*this);
    connect(&m_ui->frameList->list(), &QListWidget::currentItemChanged, this,
            &CSetAlgDialog::onUiCurrentAlgChanged);
    connect(&m_ui->frameList->list(), &QListWidget::itemActivated, this, &QDialog::accept);
    connect(m_ui->checkBoxUseAsDefault, &QCheckBox::toggled, this,
            [this](bool checked) { m_useAsDefault = checked; });
    connect(m_ui->buttonOk, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->buttonCancel, &QPushButton::clicked, this, &QDialog::reject);
}

CSetAlgDialog::~CSetAlgDialog() = default;

void CSetAlgDialog::setProvider(const thisapp::ICryptoAlgProvider& provider)
{
    m_provider = &provider;
    m_fillOnNextShow.set(true);
}

void CSetAlgDialog::setSelection(const AlgSelection& selection)
{
    m_selection = selection;
    m_fillOnNextShow.set(true);
}

void CSetAlgDialog::setUseAsDefault(bool use)
{
    m_useAsDefault = use;
    m_fillOnNextShow.set(true);
}

void CSetAlgDialog::showEvent(QShowEvent* event)
{
    if (m_provider && m_fillOnNextShow.with([](bool& flag) { return std::exchange(flag, false); }))
        fill();
    if (!event->spontaneous())
        thisapp::fitToScreen(*this);
    QDialog::showEvent(event);
}

void CSetAlgDialog::fill()
{
    const AlgSelection wanted = m_selection; // the list's signals change the member
    m_ui->frameList->setProvider(*m_provider);
    QListWidget& list = m_ui->frameList->list();
    list.setCurrentRow(firstEnabledRow(list));
    if (const int row = thisapp::findAlg(list, wanted); row >= 0)
        list.setCurrentRow(row);
    list.scrollToItem(list.currentItem(), QAbstractItemView::PositionAtCenter);
    m_ui->checkBoxUseAsDefault->setChecked(m_useAsDefault);
    list.setFocus();
}

void CSetAlgDialog::onUiCurrentAlgChanged(QListWidgetItem* current, QListWidgetItem* /*previous*/)
{
    m_selection = current ? current->data(Qt::UserRole).value<AlgSelection>() : AlgSelection();
    m_ui->labelAlg->setText(current ? tr("Algorithm: %1").arg(m_provider->displayName(m_selection))
                                    : QString());
    const thisapp::SAlgAdvice advice = thisapp::algAdvice(m_selection.algorithm);
    m_ui->labelAdvice->showMessage(advice.sentence, advice.kind);
    m_ui->buttonOk->setEnabled(current != nullptr);
}
