#include "ui/options/CGeneralOptionsFrame.h"

#include "common/settings/SAppOptions.h"
#include "common/settings/TextRules.h"
#include "ui/algorithms/AlgListFiller.h"
#include "ui/style/PlainToolTip.h"
#include "ui/style/TextDirection.h"
#include "ui_CGeneralOptionsFrame.h"

#include <QDir>
#include <QEvent>
#include <algorithm>

using thisapp::SAppOptions;

namespace {

void enableWith(const QCheckBox& box, std::initializer_list<QWidget*> dependents)
{
    for (QWidget* dependent : dependents) {
        dependent->setEnabled(box.isChecked());
        QObject::connect(&box, &QCheckBox::toggled, dependent, &QWidget::setEnabled);
    }
}

} // namespace

/// A check box and the option that it stands for.
struct CGeneralOptionsFrame::Box
{
    QCheckBox* widget;
    bool SAppOptions::*option;
};

CGeneralOptionsFrame::CGeneralOptionsFrame(QWidget* parent)
    : QFrame(parent), m_ui(new Ui::CGeneralOptionsFrame)
{
    m_ui->setupUi(this);
    indentDependents();
    fillTexts();

    enableWith(*m_ui->checkUseDefaultAlgorithm, {m_ui->labelAlgorithm, m_ui->comboAlgorithm});
    enableWith(*m_ui->checkUseOutputDir, {m_ui->labelOutputDir, m_ui->editOutputDir, m_ui->buttonBrowse});
    connect(m_ui->buttonBrowse, &QPushButton::clicked, this, &CGeneralOptionsFrame::browseClicked);
    connect(m_ui->comboLanguage, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &CGeneralOptionsFrame::languageChanged);
    connect(m_ui->checkDeleteSource, &QCheckBox::stateChanged, this,
            &CGeneralOptionsFrame::deleteSourceChanged);
    connect(m_ui->comboAlgorithm, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &CGeneralOptionsFrame::changed);
    connect(m_ui->editOutputDir, &QLineEdit::textChanged, this, &CGeneralOptionsFrame::changed);
    for (const Box& box : boxes())
        connect(box.widget, &QCheckBox::toggled, this, &CGeneralOptionsFrame::changed);
}

CGeneralOptionsFrame::~CGeneralOptionsFrame() = default;

std::vector<CGeneralOptionsFrame::Box> CGeneralOptionsFrame::boxes() const
{
    return {{m_ui->checkContextMenu, &SAppOptions::integrateToShellContextMenu},
            {m_ui->checkSendTo, &SAppOptions::addToSendMenu},
            {m_ui->checkUseDefaultAlgorithm, &SAppOptions::useDefaultAlgorithmAtStarting},
            {m_ui->checkShowPassword, &SAppOptions::showPassword},
            {m_ui->checkConfirmPassword, &SAppOptions::useConfirmPassword},
            {m_ui->checkAdvancedMode, &SAppOptions::showAdvancedPasswordOptions},
            {m_ui->checkSeal, &SAppOptions::sealFiles},
            {m_ui->checkSalt, &SAppOptions::useSalt},
            {m_ui->checkShowConfirm, &SAppOptions::showConfirmDialog},
            {m_ui->checkRewrite, &SAppOptions::rewriteOutputFile},
            {m_ui->checkAutogenerate, &SAppOptions::useOutputFileAutogenerator},
            {m_ui->checkUseOutputDir, &SAppOptions::useDefaultOutputDir},
            {m_ui->checkDeleteSource, &SAppOptions::deleteSourceFileAfterEncryption},
            {m_ui->checkConfirmDelete, &SAppOptions::confirmDeleteSourceFileAfterEncryption}};
}

void CGeneralOptionsFrame::setLanguages(const std::vector<tessaly::i18n::Language>& languages)
{
    m_ui->comboLanguage->clear();
    for (const tessaly::i18n::Language& language : languages)
        m_ui->comboLanguage->addItem(QString::fromStdString(language.displayName), language.lcid);
}

void CGeneralOptionsFrame::setAlgProvider(const thisapp::ICryptoAlgProvider& provider)
{
    thisapp::fillAlgList(*m_ui->comboAlgorithm, provider);
}

void CGeneralOptionsFrame::setLanguage(std::uint32_t localeId)
{
    m_ui->comboLanguage->setCurrentIndex(m_ui->comboLanguage->findData(localeId));
}

void CGeneralOptionsFrame::setOptions(const SAppOptions& options)
{
    for (const Box& box : boxes())
        box.widget->setChecked(options.*box.option);
    setConfirmDeleteEnabled(options.deleteSourceFileAfterEncryption);
    setLanguage(options.localeId);
    m_ui->comboAlgorithm->setCurrentIndex(
        thisapp::findAlg(*m_ui->comboAlgorithm, options.defaultAlgorithm()));
    setOutputDir(options.outputDirPath);
}

void CGeneralOptionsFrame::store(SAppOptions& options) const
{
    for (const Box& box : boxes())
        options.*box.option = box.widget->isChecked();
    if (m_ui->comboLanguage->currentIndex() >= 0)
        options.localeId = m_ui->comboLanguage->currentData().toUInt();
    options.setDefaultAlgorithm(m_ui->comboAlgorithm->currentData().value<thisapp::AlgSelection>());
    const QString typed = outputDir().trimmed();
    options.outputDirPath = QDir::toNativeSeparators(thisapp::folderPath(typed).value_or(typed));
}

QString CGeneralOptionsFrame::outputDir() const
{
    return m_ui->editOutputDir->text();
}

void CGeneralOptionsFrame::setOutputDir(const QString& path)
{
    m_ui->editOutputDir->setText(path);
}

void CGeneralOptionsFrame::focusOutputDir()
{
    m_ui->editOutputDir->setFocus();
}

void CGeneralOptionsFrame::setConfirmDeleteEnabled(bool enabled)
{
    m_ui->checkConfirmDelete->setEnabled(enabled);
}

QSize CGeneralOptionsFrame::twoColumns(const QSize& left, const QSize& right) const
{
    const QMargins margins = m_ui->columns->contentsMargins();
    return {left.width() + m_ui->columns->spacing() + right.width() + margins.left() + margins.right(),
            std::max(left.height(), right.height()) + margins.top() + margins.bottom()};
}

QSize CGeneralOptionsFrame::sizeHint() const
{
    // Beside a scroll bar, too, which shows until the columns have their places.
    const int spare = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this) +
                      2 * fontMetrics().averageCharWidth();
    return twoColumns(m_ui->leftColumn->sizeHint(), m_ui->rightColumn->sizeHint()) + QSize(spare, 0);
}

QSize CGeneralOptionsFrame::minimumSizeHint() const
{
    const QMargins margins = m_ui->columns->contentsMargins();
    return {std::max(m_ui->leftColumn->minimumSize().width(), m_ui->rightColumn->minimumSize().width()) +
                margins.left() + margins.right(),
            m_ui->columns->minimumSize().height()};
}

void CGeneralOptionsFrame::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    const QSize wanted = twoColumns(m_ui->leftColumn->minimumSize(), m_ui->rightColumn->minimumSize());
    m_ui->columns->setDirection(width() < wanted.width() ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

void CGeneralOptionsFrame::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        fillTexts();
    }
    if (event->type() == QEvent::LayoutDirectionChange)
        indentDependents();
}

void CGeneralOptionsFrame::fillTexts()
{
    thisapp::showDescriptionsAsToolTips(*this);
    fillShortcuts();
}

/// What depends on a check box starts below the box's text.
void CGeneralOptionsFrame::indentDependents()
{
    const int indent = style()->pixelMetric(QStyle::PM_IndicatorWidth) +
                       style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing);
    for (QLayout* dependents : {m_ui->folderLayout, m_ui->confirmDeleteLayout})
        dependents->setContentsMargins(isRightToLeft() ? 0 : indent, 0, isRightToLeft() ? indent : 0, 0);
}

void CGeneralOptionsFrame::setShortcuts(const thisapp::Shortcuts& shortcuts)
{
    m_shortcuts = shortcuts;
    fillShortcuts();
}

void CGeneralOptionsFrame::fillShortcuts()
{
    QTableWidget& table = *m_ui->tableShortcuts;
    table.setHorizontalHeaderLabels({tr("Shortcut key"), tr("Description")});
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    table.setRowCount(static_cast<int>(m_shortcuts.size()));
    int row = 0;
    for (const thisapp::Shortcut& shortcut : m_shortcuts) {
        table.setItem(row, 0, new QTableWidgetItem(thisapp::leftToRight(shortcut.keyText())));
        table.setItem(row, 1, new QTableWidgetItem(shortcut.translatedDescription()));
        ++row;
    }
    table.resizeColumnsToContents();
    table.resizeRowsToContents();
}
