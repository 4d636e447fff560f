#include "ui/options/COptionsDialog.h"

#include "common/naming/OutputNaming.h"
#include "common/settings/IAppOptionsChanged.h"
#include "common/settings/TextRules.h"
#include "ui/info/CTextViewDialog.h"
#include "ui/info/TextTail.h"
#include "ui/options/NamingWarning.h"
#include "ui/style/FitToScreen.h"
#include "ui/style/PlainToolTip.h"
#include "ui_COptionsDialog.h"

#include <QCloseEvent>
#include <QDate>
#include <QDir>
#include <QFileDialog>
#include <QShowEvent>

using thisapp::NamingDirection;
using thisapp::NamingSettings;

COptionsDialog::COptionsDialog(QWidget* parent) : QDialog(parent), m_ui(new Ui::COptionsDialog)
{
    m_ui->setupUi(this);
    setNamingTexts();
    thisapp::showDescriptionAsToolTip(*m_ui->buttonRestore);
    connect(m_ui->frameGeneral, &CGeneralOptionsFrame::browseClicked, this,
            &COptionsDialog::onUiOpenDefaultOutputDir);
    connect(m_ui->frameGeneral, &CGeneralOptionsFrame::languageChanged, this,
            &COptionsDialog::onUiLanguageChanged);
    connect(m_ui->frameGeneral, &CGeneralOptionsFrame::deleteSourceChanged, this,
            &COptionsDialog::onUiDeleteSourceFileAfterEncryptionChanged);
    connect(m_ui->frameGeneral, &CGeneralOptionsFrame::changed, this, &COptionsDialog::updateSamples);
    connect(m_ui->frameAdvanced, &CAdvancedOptionsFrame::changed, this, &COptionsDialog::updateSamples);
    connect(m_ui->frameAdvanced, &CAdvancedOptionsFrame::viewLogFileClicked, this,
            &COptionsDialog::onUiViewLogFileClicked);
    connect(m_ui->buttonRestore, &QPushButton::clicked, this, &COptionsDialog::onUiRestoreDefaults);
    connectNaming();
}

COptionsDialog::~COptionsDialog() = default;

void COptionsDialog::connectNaming()
{
    using Frame = CNamingOptionsFrame;
    using Dialog = COptionsDialog;
    const auto* enc = m_ui->frameEncryption;
    connect(enc, &Frame::addExtChanged, this, &Dialog::onUiEncFileNameAddExtChanged);
    connect(enc, &Frame::addSuffixChanged, this, &Dialog::onUiEncFileNameAddSuffixChanged);
    connect(enc, &Frame::addPrefixChanged, this, &Dialog::onUiEncFileNameAddPrefixChanged);
    connect(enc, &Frame::addDateChanged, this, &Dialog::onUiEncFileNameAddDateChanged);
    connect(enc, &Frame::extChanged, this, &Dialog::onUiEncFileNameExtChanged);
    connect(enc, &Frame::suffixChanged, this, &Dialog::onUiEncFileNameSuffixChanged);
    connect(enc, &Frame::prefixChanged, this, &Dialog::onUiEncFileNamePrefixChanged);
    const auto* dec = m_ui->frameDecryption;
    connect(dec, &Frame::addExtChanged, this, &Dialog::onUiDecFileNameAddExtChanged);
    connect(dec, &Frame::addSuffixChanged, this, &Dialog::onUiDecFileNameAddSuffixChanged);
    connect(dec, &Frame::addPrefixChanged, this, &Dialog::onUiDecFileNameAddPrefixChanged);
    connect(dec, &Frame::addDateChanged, this, &Dialog::onUiDecFileNameAddDateChanged);
    connect(dec, &Frame::extChanged, this, &Dialog::onUiDecFileNameExtChanged);
    connect(dec, &Frame::suffixChanged, this, &Dialog::onUiDecFileNameSuffixChanged);
    connect(dec, &Frame::prefixChanged, this, &Dialog::onUiDecFileNamePrefixChanged);
}

void COptionsDialog::setLanguages(const std::vector<tessaly::i18n::Language>& languages)
{
    m_ui->frameGeneral->setLanguages(languages);
}

void COptionsDialog::setAlgProvider(const thisapp::ICryptoAlgProvider& provider)
{
    m_ui->frameGeneral->setAlgProvider(provider);
}

void COptionsDialog::setShortcuts(const thisapp::Shortcuts& shortcuts)
{
    m_ui->frameGeneral->setShortcuts(shortcuts);
}

void COptionsDialog::setLogFilePath(const QString& path)
{
    m_ui->frameAdvanced->setLogFilePath(QDir::toNativeSeparators(path));
}

void COptionsDialog::onUiOk()
{
    if (takeOver())
        accept();
}

void COptionsDialog::onUiApply()
{
    using thisapp::MessageKind;
    if (!takeOver())
        return;
    if (m_receiver != nullptr)
        setApplied(m_receiver->appOptionsChanged(m_taken));
    m_ui->frameGeneral->setOutputDir(m_options.outputDirPath);
    m_ui->frameGeneral->setLanguage(m_options.localeId);
    if (m_ui->buttonApply->hasFocus())
        m_ui->buttonOk->setFocus();
    settle();
    if (m_problem.isEmpty())
        m_ui->lineEditMsg->showMessage(tr("The options were applied."), MessageKind::Success);
    else
        m_ui->lineEditMsg->showMessage(m_problem, MessageKind::Warning);
}

void COptionsDialog::setApplied(const thisapp::SAppliedOptions& applied)
{
    m_options.localeId = m_taken.localeId = applied.localeId;
    m_problem = applied.problem;
}

/// False when the values cannot be taken, and the line says why.
bool COptionsDialog::takeOver()
{
    const thisapp::SAppOptions options = shownOptions();
    if (options.useDefaultOutputDir && !thisapp::folderPath(options.outputDirPath)) {
        m_ui->tabs->setCurrentIndex(0);
        m_ui->frameGeneral->focusOutputDir();
        m_ui->lineEditMsg->showMessage(thisapp::namingWarning(NamingSettings(options)),
                                       thisapp::MessageKind::Error);
        return false;
    }
    m_options = m_taken = options;
    const bool chosen =
        options.useDefaultAlgorithmAtStarting && (!m_settled.useDefaultAlgorithmAtStarting ||
                                                  options.defaultAlgorithm() != m_settled.defaultAlgorithm());
    if (!chosen)
        m_taken.setDefaultAlgorithm({});
    return true;
}

void COptionsDialog::onUiCancel()
{
    reject();
}

void COptionsDialog::onUiRestoreDefaults()
{
    thisapp::SAppOptions defaults;
    defaults.localeId = shownOptions().localeId;
    showOptions(defaults);
    updateSamples();
}

void COptionsDialog::onUiOpenDefaultOutputDir()
{
    CGeneralOptionsFrame& general = *m_ui->frameGeneral;
    const QString chosen =
        QFileDialog::getExistingDirectory(this, tr("Default output directory"), general.outputDir().trimmed(),
                                          QFileDialog::ShowDirsOnly)
            .trimmed();
    if (!chosen.isEmpty())
        general.setOutputDir(QDir::toNativeSeparators(chosen));
}

void COptionsDialog::onUiLanguageChanged(int)
{
    updateSamples();
    if (shownOptions().localeId != m_options.localeId)
        m_ui->lineEditMsg->showMessage(tr("The language changes with OK or Apply."),
                                       thisapp::MessageKind::Plain);
}

void COptionsDialog::onUiViewLogFileClicked(const QString& path)
{
    if (const thisapp::TextTail log = thisapp::readTextTail(path); !log.ok) {
        m_ui->lineEditMsg->showMessage(tr("The log file can't be read: %1").arg(log.text),
                                       thisapp::MessageKind::Warning);
        return;
    }
    CTextViewDialog viewer(this);
    viewer.setWindowTitle(tr("Log file"));
    viewer.setSource([path] { return thisapp::readTextTail(path).text; });
    viewer.exec();
}

void COptionsDialog::onUiDeleteSourceFileAfterEncryptionChanged(int state)
{
    m_ui->frameGeneral->setConfirmDeleteEnabled(state == Qt::Checked);
}

void COptionsDialog::showOptions(const thisapp::SAppOptions& options)
{
    const NamingSettings naming(options);
    m_ui->frameGeneral->setOptions(options);
    m_ui->frameEncryption->setParts(naming.encryption);
    m_ui->frameDecryption->setParts(naming.decryption);
    m_ui->frameAdvanced->setOptions(options);
}

/// From here on the controls differ from what is in effect only after a change.
void COptionsDialog::settle()
{
    m_settled = shownOptions();
    m_ui->buttonApply->setEnabled(false);
}

void COptionsDialog::showEvent(QShowEvent* event)
{
    if (!event->spontaneous())
        thisapp::fitToScreen(*this);
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    showOptions(m_options);
    settle();
    updateSamples();
    if (!m_problem.isEmpty())
        m_ui->lineEditMsg->showMessage(m_problem, thisapp::MessageKind::Warning);
}

void COptionsDialog::closeEvent(QCloseEvent* event)
{
    onUiCancel();
    event->accept();
}

void COptionsDialog::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        setNamingTexts();
        thisapp::showDescriptionAsToolTip(*m_ui->buttonRestore);
    }
}

void COptionsDialog::setNamingTexts()
{
    m_ui->frameEncryption->setTexts({tr("Name of encrypted file"), tr("Add f&ile extension:"),
                                     tr("Add &suffix:"), tr("Add &prefix:"), tr("Add dat&e"),
                                     tr("Samp&le:")});
    m_ui->frameDecryption->setTexts({tr("Name of decrypted file"), tr("Add file ex&tension:"),
                                     tr("Add s&uffix:"), tr("Add p&refix:"), tr("Add &date"),
                                     tr("Sa&mple:")});
}

thisapp::SAppOptions COptionsDialog::shownOptions() const
{
    thisapp::SAppOptions options = m_options;
    m_ui->frameGeneral->store(options);
    NamingSettings naming(options);
    naming.encryption = m_ui->frameEncryption->parts();
    naming.decryption = m_ui->frameDecryption->parts();
    naming.store(options);
    m_ui->frameAdvanced->store(options);
    return options;
}

void COptionsDialog::updateSamples()
{
    const thisapp::SAppOptions options = shownOptions();
    const NamingSettings naming(options);
    const auto sample = [&](NamingDirection direction) {
        return thisapp::outputFileName(thisapp::SampleInput, direction, naming, QDate::currentDate());
    };
    m_ui->frameEncryption->setSample(sample(NamingDirection::Encryption));
    m_ui->frameDecryption->setSample(sample(NamingDirection::Decryption));
    m_ui->lineEditMsg->showMessage(thisapp::namingWarning(naming), thisapp::MessageKind::Warning);
    m_ui->buttonApply->setEnabled(options != m_settled);
}
