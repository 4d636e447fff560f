#include "app/window/CRequestHost.h"

#include "app/job/CFileJob.h"
#include "app/window/CInputField.h"
#include "app/window/CJobFrame.h"
#include "app/window/FileDialogs.h"
#include "common/path/PathText.h"
#include "ui/algorithms/CSelectAlgFrame.h"
#include "ui/algorithms/ICryptoAlgProvider.h"
#include "ui/disk/CDiskWork.h"
#include "ui/password/CSetKeyAndIvDialog.h"
#include "ui/password/CSetPasswordDialog.h"

#include <QLocale>
#include <QMessageBox>
#include <QPushButton>

namespace thisapp {

CRequestHost::CRequestHost(QWidget& window, CJobFrame& form, CInputField& input, CDiskWork& disk,
                           bool isJobRunning, CFileJob& job, const ICryptoAlgProvider& algorithms)
    : m_window(window),
      m_form(form),
      m_input(input),
      m_disk(disk),
      m_isJobRunning(isJobRunning),
      m_job(job),
      m_algorithms(algorithms)
{
}

bool CRequestHost::isJobRunning() const
{
    return m_isJobRunning;
}

AlgSelection CRequestHost::selection() const
{
    return m_form.algFrame().selection();
}

QString CRequestHost::inputText() const
{
    return m_form.inputText();
}

QString CRequestHost::outputText() const
{
    return m_form.outputText();
}

void CRequestHost::setInputText(const QString& text)
{
    m_input.set(text, CInputField::Proposal::IfEmpty);
    m_input.settle(); // for the proposal
}

void CRequestHost::setOutputText(const QString& text)
{
    m_form.setOutputText(text);
}

std::optional<std::filesystem::path> CRequestHost::resolve(const QString& text)
{
    const auto answer = m_disk.start<std::filesystem::path>([text] { return textPath(meantPath(text)); });
    return m_disk.wait(answer) ? std::optional(answer.get()) : std::nullopt;
}

std::optional<RequestFacts> CRequestHost::look(const std::filesystem::path& input,
                                               const std::filesystem::path& output)
{
    const auto answer = m_disk.start<RequestFacts>([input, output] { return lookAtRequest(input, output); });
    return m_disk.wait(answer) ? std::optional(answer.get()) : std::nullopt;
}

QString CRequestHost::chooseInput(const QString& title)
{
    return askFileToOpen(&m_window, m_disk, title, {});
}

QString CRequestHost::chooseOutput(const QString& title)
{
    return askFileToSave(&m_window, m_disk, title, m_form.inputText().trimmed());
}

OnEncrypted CRequestHost::askAboutEncrypted(int encrypted, int all)
{
    QMessageBox box(QMessageBox::Question, tr("Encrypt again"),
                    all == 1 ? tr("This file seems to be encrypted already")
                             : tr("Of %1 files, %Ln seem to be encrypted already.", "", encrypted)
                                   .arg(QLocale().toString(all)),
                    QMessageBox::NoButton, &m_window);
    box.setInformativeText(tr("What is encrypted twice must be decrypted twice."));
    QAbstractButton* again = box.addButton(tr("Encrypt again"), QMessageBox::AcceptRole);
    QAbstractButton* leaveOut =
        encrypted < all ? box.addButton(tr("Leave them out"), QMessageBox::AcceptRole) : nullptr;
    box.setDefaultButton(box.addButton(QMessageBox::Cancel));
    box.exec();
    if (box.clickedButton() == again)
        return OnEncrypted::Encrypt;
    return leaveOut != nullptr && box.clickedButton() == leaveOut ? OnEncrypted::LeaveOut
                                                                  : OnEncrypted::Cancel;
}

bool CRequestHost::enterPassword(PasswordEntry& entry)
{
    CSetPasswordDialog dialog(&m_window);
    dialog.setSubject(entry.names.value(0), entry.names.size() - 1);
    dialog.setEncryptMode(entry.operation == Operation::Encrypt);
    dialog.setAlgorithmName(m_algorithms.displayName(entry.selection));
    dialog.setSeal(entry.seal);
    dialog.setUseSalt(entry.useSalt);
    dialog.setRewriteOutputFile(entry.rewriteOutput);
    dialog.setShowAdvancedOptions(entry.showAdvancedOptions);
    dialog.setShowPassword(entry.showPassword);
    dialog.setUseConfirmPassword(entry.useConfirmPassword);
    const bool accepted = dialog.exec() == QDialog::Accepted;
    entry.switchToAdvanced = dialog.switchToAdvanced();
    if (!accepted && !entry.switchToAdvanced)
        return false;
    entry.seal = dialog.seal();
    entry.useSalt = dialog.useSalt();
    entry.rewriteOutput = dialog.rewriteOutputFile();
    entry.password = dialog.password();
    return true;
}

bool CRequestHost::enterKeyAndIv(KeyEntry& entry)
{
    CSetKeyAndIvDialog dialog(&m_window);
    dialog.setSubject(entry.names.value(0), entry.names.size() - 1);
    dialog.setEncryptMode(entry.operation == Operation::Encrypt);
    dialog.setAlgorithmName(m_algorithms.displayName(entry.selection));
    dialog.setExpectedLengths(entry.keyLength, entry.ivLength);
    dialog.setSeal(entry.seal);
    dialog.setUseSalt(entry.useSalt);
    dialog.setRewriteOutputFile(entry.rewriteOutput);
    dialog.setTyped({entry.typedIv, entry.typedKey});
    const bool accepted = dialog.exec() == QDialog::Accepted;
    entry.switchToNormal = dialog.switchToNormal();
    if (!accepted && !entry.switchToNormal)
        return false;
    entry.seal = dialog.seal();
    entry.useSalt = dialog.useSalt();
    entry.rewriteOutput = dialog.rewriteOutputFile();
    entry.typedIv = dialog.typed().iv;
    entry.typedKey = dialog.typed().key;
    entry.key = dialog.key();
    entry.iv = dialog.iv();
    return true;
}

bool CRequestHost::prepareEngine(Operation operation, const AlgSelection& selection)
{
    return m_job.prepare(operation, selection);
}

} // namespace thisapp
