#include "ui/algorithms/CSelectAlgFrame.h"

#include "ui/algorithms/AlgAdviceText.h"
#include "ui/algorithms/AlgColumns.h"
#include "ui/algorithms/AlgListFiller.h"
#include "ui/algorithms/ICryptoAlgProvider.h"
#include "ui/style/PlainToolTip.h"
#include "ui_CSelectAlgFrame.h"

#include <QEvent>

using thisapp::AlgSelection;

CSelectAlgFrame::CSelectAlgFrame(QWidget* parent)
    : QFrame(parent), m_ui(std::make_unique<Ui::CSelectAlgFrame>())
{
    m_ui->setupUi(this);
    setFocusProxy(m_ui->comboBoxAlg);
    m_ui->comboBoxAlg->setItemDelegate(new thisapp::AlgItemDelegate(m_ui->comboBoxAlg));
    connect(m_ui->comboBoxAlg, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &CSelectAlgFrame::showAdvice);
    connect(m_ui->comboBoxAlg, QOverload<int>::of(&QComboBox::activated), this,
            &CSelectAlgFrame::onUiAlgActivated);
}

CSelectAlgFrame::~CSelectAlgFrame() = default;

void CSelectAlgFrame::setProvider(const thisapp::ICryptoAlgProvider& provider)
{
    const AlgSelection previous = selection();
    m_provider = &provider;
    thisapp::fillAlgList(*m_ui->comboBoxAlg, provider);
    m_reportedIndex = -1;
    setSelection(previous);
}

AlgSelection CSelectAlgFrame::selection() const
{
    return m_ui->comboBoxAlg->currentData().value<AlgSelection>();
}

bool CSelectAlgFrame::setSelection(const AlgSelection& selection)
{
    if (!m_provider || !m_provider->isValid(selection))
        return false;
    const int index = thisapp::findAlg(*m_ui->comboBoxAlg, selection);
    if (index < 0)
        return false;
    m_reportedIndex = index;
    m_ui->comboBoxAlg->setCurrentIndex(index);
    return true;
}

int CSelectAlgFrame::labelWidth() const
{
    return m_ui->labelAlg->sizeHint().width();
}

void CSelectAlgFrame::setLabelWidth(int width)
{
    m_ui->labelAlg->setMinimumWidth(width);
}

void CSelectAlgFrame::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        showAdvice();
    }
    QFrame::changeEvent(event);
}

void CSelectAlgFrame::showAdvice()
{
    m_ui->comboBoxAlg->setAccessibleDescription(thisapp::algAdvice(selection().algorithm).sentence);
    thisapp::showDescriptionAsToolTip(*m_ui->comboBoxAlg);
}

void CSelectAlgFrame::onUiAlgActivated(int index)
{
    if (index == m_reportedIndex)
        return;
    m_reportedIndex = index;
    emit notifyAlgChanged();
}
