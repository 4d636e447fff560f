#include "ui/options/COptionsDialog.h"

#include "common/naming/OutputNaming.h"
#include "common/settings/IAppOptionsChanged.h"
#include "common/settings/TextRules.h"
#include "ui/info/CTextViewDialog.h"
#include "ui/info/TextTail.h"
#include "ui/style/TextSize.h"
#include "ui_COptionsDialog.h"

#include <QCloseEvent>
#include <QDate>
#include <QDir>
#include <QFileDialog>
#include <QShowEvent>
#include <QStyle>

#include <algorithm>

using thisapp::NamingDirection;
using thisapp::NamingSettings;

namespace {

const QString SampleInput = QStringLiteral("MyFile.txt");

} // namespace

COptionsDialog::COptionsDialog(QWidget* parent) : QDialog(parent), m_ui(new Ui::COptionsDialog)
{
    m_ui->setupUi(this);
    setNamingTexts();
    for (QScrollArea* area : {m_ui->scrollGeneral, m_ui->scrollNames, m_ui->scrollAdvanced}) {
        // The tab's own background shall show through.
        area->viewport()->setAutoFillBackground(false);
        area->widget()->setAutoFillBackground(false);
        // Wide enough to scroll down only.
        const int width = area->widget()->minimumSizeHint().width() +
                          style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, area);
        area->setMinimumWidth(std::min(width, thisapp::textSize(*this, 90, 1).width()));
    }

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
    connectNaming();
    resize(thisapp::textSize(*this, 90, 38));
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
        setApplied(m_receiver->appOptionsChanged(m_options));
    m_ui->frameGeneral->setOutputDir(m_options.outputDirPath);
    m_ui->frameGeneral->setLanguage(m_options.localeId);
    if (m_problem.isEmpty())
        m_ui->lineEditMsg->showMessage(tr("The options were applied."), MessageKind::Success);
    else
        m_ui->lineEditMsg->showMessage(m_problem, MessageKind::Warning);
}

void COptionsDialog::setApplied(const thisapp::SAppliedOptions& applied)
{
    m_options.localeId = applied.localeId;
    m_problem = applied.problem;
}

/// False when the values cannot be taken, and the line says why.
bool COptionsDialog::takeOver()
{
    const thisapp::SAppOptions options = shownOptions();
    if (options.useDefaultOutputDir && !thisapp::folderPath(options.outputDirPath)) {
        m_ui->tabs->setCurrentIndex(0);
        m_ui->frameGeneral->focusOutputDir();
        m_ui->lineEditMsg->showMessage(namingWarning(NamingSettings(options)), thisapp::MessageKind::Error);
        return false;
    }
    m_options = options;
    return true;
}

void COptionsDialog::onUiCancel()
{
    reject();
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

void COptionsDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    const NamingSettings naming(m_options);
    m_ui->frameGeneral->setOptions(m_options);
    m_ui->frameEncryption->setParts(naming.encryption);
    m_ui->frameDecryption->setParts(naming.decryption);
    m_ui->frameAdvanced->setOptions(m_options);
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
    const NamingSettings naming(shownOptions());
    const auto sample = [&](NamingDirection direction) {
        return thisapp::outputFileName(SampleInput, direction, naming, QDate::currentDate());
    };
    m_ui->frameEncryption->setSample(sample(NamingDirection::Encryption));
    m_ui->frameDecryption->setSample(sample(NamingDirection::Decryption));
    m_ui->lineEditMsg->showMessage(namingWarning(naming), thisapp::MessageKind::Warning);
}

QString COptionsDialog::namingWarning(const NamingSettings& naming) const
{
    if (!naming.autogenerate)
        return {};
    if (naming.useDefaultOutputDir && !thisapp::folderPath(naming.outputDirPath))
        return tr("The default output folder must be an absolute path.");
    if (naming.useDefaultOutputDir)
        return naming.outputDirPath.isEmpty()
                   ? tr("No default output folder is given: files go beside their input.")
                   : QString();
    const auto nextName = [&](const QString& name) {
        return thisapp::outputFileName(name, thisapp::namingDirection(name, naming), naming,
                                       QDate::currentDate());
    };
    const auto sameName = [](const QString& a, const QString& b) {
        return a.compare(b, Qt::CaseInsensitive) == 0;
    };
    const QString encrypted = nextName(SampleInput);
    if (sameName(encrypted, SampleInput))
        return tr("Encrypted files would get the names of their input files.");
    if (sameName(nextName(encrypted), encrypted))
        return tr("Decrypted files would get the names of their input files.");
    return {};
}
