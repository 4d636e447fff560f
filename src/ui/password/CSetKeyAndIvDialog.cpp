#include "ui/password/CSetKeyAndIvDialog.h"

#include "common/secret/KeyFile.h"
#include "crypto/key/RandomBytes.h"
#include "lib/secret/Hex.h"
#include "ui/password/HexCheck.h"
#include "ui/password/KeyFileDialogs.h"
#include "ui/password/SecretClipboard.h"
#include "ui/password/SecretFields.h"
#include "ui/style/FitToScreen.h"
#include "ui/style/PlainToolTip.h"
#include "ui/style/TextSize.h"
#include "ui_CSetKeyAndIvDialog.h"

#include <QLocale>
#include <QMessageBox>
#include <QShowEvent>

#include <utility>

using namespace tessaly;
using thisapp::HexInput;
using thisapp::MessageKind;

namespace {

QString countText(std::size_t entered, std::uint32_t expected)
{
    return CSetKeyAndIvDialog::tr("%1 of %2 bytes entered")
        .arg(QLocale().toString(static_cast<qulonglong>(entered)), QLocale().toString(expected));
}

/// Shows the check's outcome at the field and gives it back.
thisapp::SHexCheck checkField(HexInput input, CHexEdit& field, QLabel& count, std::uint32_t expectedLength)
{
    thisapp::SHexCheck check = thisapp::checkHex(input, thisapp::typedText(field), expectedLength);
    field.showValidity(check.passed());
    count.setText(countText(check.byteCount, expectedLength));
    return check;
}

} // namespace

CSetKeyAndIvDialog::CSetKeyAndIvDialog(QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::CSetKeyAndIvDialog>())
{
    m_ui->setupUi(this);
    m_ui->labelNormalMode->setLinkText(tr("Show simple options"));
    m_ui->buttonCopy->setAccessibleDescription(
        tr("Puts key and IV on the clipboard, from where they are removed after %Ln seconds.", "",
           thisapp::SecretClipboardSeconds));
    thisapp::showDescriptionsAsToolTips(*this);
    connectWidgets();
}

CSetKeyAndIvDialog::~CSetKeyAndIvDialog()
{
    clearFields();
}

void CSetKeyAndIvDialog::connectWidgets()
{
    connect(m_ui->plainTextEditKey, &QPlainTextEdit::textChanged, this, &CSetKeyAndIvDialog::onUiKeyChanged);
    connect(m_ui->plainTextEditIv, &QPlainTextEdit::textChanged, this, &CSetKeyAndIvDialog::onUiIvChanged);
    connect(m_ui->buttonGenerate, &QPushButton::clicked, this, &CSetKeyAndIvDialog::onUiGenerate);
    connect(m_ui->buttonCopy, &QPushButton::clicked, this, &CSetKeyAndIvDialog::onUiCopy);
    connect(m_ui->buttonSave, &QPushButton::clicked, this, &CSetKeyAndIvDialog::onUiSave);
    connect(m_ui->buttonLoad, &QPushButton::clicked, this, &CSetKeyAndIvDialog::onUiLoad);
    for (CHexEdit* field : {m_ui->plainTextEditIv, m_ui->plainTextEditKey})
        connect(field, &CHexEdit::notifyEntered, m_ui->buttonOk, &QPushButton::click);
    connect(m_ui->labelNormalMode, &QLabel::linkActivated, this, &CSetKeyAndIvDialog::onUiSwitchToNormalMode);
    connect(m_ui->checkBoxSeal, &QCheckBox::toggled, m_ui->checkBoxUseSalt, &QWidget::setDisabled);
    connect(m_ui->buttonOk, &QPushButton::clicked, this, &CSetKeyAndIvDialog::onUiOk);
    connect(m_ui->buttonCancel, &QPushButton::clicked, this, &CSetKeyAndIvDialog::onUiCancel);
}

void CSetKeyAndIvDialog::setExpectedLengths(std::uint32_t keyLength, std::uint32_t ivLength)
{
    m_keyLength = keyLength;
    m_ivLength = ivLength;
}

void CSetKeyAndIvDialog::setSubject(const QString& fileName, int others)
{
    m_ui->labelSubject->setSubject(fileName, others);
}

void CSetKeyAndIvDialog::showEvent(QShowEvent* event)
{
    if (!event->spontaneous())
        prepare();
    QDialog::showEvent(event);
}

void CSetKeyAndIvDialog::hideEvent(QHideEvent* event)
{
    if (!event->spontaneous()) // a minimised window keeps what was typed
        clearFields();
    QDialog::hideEvent(event);
}

void CSetKeyAndIvDialog::prepare()
{
    showTexts();
    m_ui->checkBoxSeal->setVisible(m_encrypt);
    m_ui->checkBoxUseSalt->setVisible(m_encrypt);
    for (QWidget* tool : {m_ui->buttonGenerate, m_ui->buttonCopy, m_ui->buttonSave})
        tool->setVisible(m_encrypt);
    m_ui->checkBoxSeal->setChecked(m_seal);
    m_ui->checkBoxUseSalt->setChecked(m_useSalt);
    m_ui->checkBoxRewrite->setChecked(m_rewriteOutputFile);
    m_ui->plainTextEditIv->setExpectedLength(m_ivLength);
    m_ui->plainTextEditKey->setExpectedLength(m_keyLength);

    m_key.clear();
    m_iv.clear();
    m_switchToNormal = false;
    fillFields();
    m_mayRegenerate = false;
    m_ui->plainTextEditIv->setFocus();
    thisapp::fitToScreen(*this);
}

void CSetKeyAndIvDialog::showTexts()
{
    setWindowTitle(m_encrypt ? tr("Key and IV to encrypt") : tr("Key and IV to decrypt"));
    const QString info = m_encrypt ? tr("Remember the name of the encryption algorithm, key and IV. \r\n"
                                        "These data will be needed to decrypt the file. \r\n"
                                        "Selected cryptographic algorithm: %1.")
                                   : tr("Enter the key and IV to decrypt the file. \r\n"
                                        "Selected cryptographic algorithm: %1.");
    m_ui->textEditInfo->showText(info.arg(m_algorithmName));
    setAccessibleDescription(m_ui->textEditInfo->toPlainText());
    m_ui->labelKey->setText(tr("&Key, length: %1 bytes (HEX format)").arg(QLocale().toString(m_keyLength)));
    m_ui->labelIv->setText(
        tr("&Initialization vector (IV), length: %1 bytes (HEX format)").arg(QLocale().toString(m_ivLength)));
    // Room for the longest from the start.
    for (const auto& [count, length] :
         {std::pair(m_ui->labelKeyCount, m_keyLength), std::pair(m_ui->labelIvCount, m_ivLength)})
        count->setMinimumWidth(count->fontMetrics().horizontalAdvance(countText(length, length)));
}

/// Shows what the caller handed in; problems only if there is something to judge.
void CSetKeyAndIvDialog::fillFields()
{
    {
        const QSignalBlocker ivBlocker(m_ui->plainTextEditIv);
        const QSignalBlocker keyBlocker(m_ui->plainTextEditKey);
        thisapp::setTypedText(*m_ui->plainTextEditIv, m_typed.iv);
        thisapp::setTypedText(*m_ui->plainTextEditKey, m_typed.key);
    }
    m_typed = {};
    check();
    if (m_ui->plainTextEditIv->document()->isEmpty() && m_ui->plainTextEditKey->document()->isEmpty()) {
        m_ui->plainTextEditIv->showValidity(std::nullopt);
        m_ui->plainTextEditKey->showValidity(std::nullopt);
        m_ui->lineEditMsg->clearMessage();
    }
}

void CSetKeyAndIvDialog::onUiKeyChanged()
{
    m_mayRegenerate = false;
    check();
}

void CSetKeyAndIvDialog::onUiIvChanged()
{
    m_mayRegenerate = false;
    check();
}

/// True when both fields pass; shows every problem, the IV's first.
bool CSetKeyAndIvDialog::check()
{
    const auto iv = checkField(HexInput::Iv, *m_ui->plainTextEditIv, *m_ui->labelIvCount, m_ivLength);
    const auto key = checkField(HexInput::Key, *m_ui->plainTextEditKey, *m_ui->labelKeyCount, m_keyLength);
    QString message;
    for (const auto* field : {&iv, &key})
        if (!field->passed())
            message += field->problem + QLatin1Char(' ');
    const bool passed = message.isEmpty();
    m_ui->lineEditMsg->showMessage(message, passed ? MessageKind::Plain : MessageKind::Warning);
    m_ui->buttonCopy->setEnabled(passed);
    m_ui->buttonSave->setEnabled(passed);
    return passed;
}

void CSetKeyAndIvDialog::takeResults()
{
    m_typed = {thisapp::typedText(*m_ui->plainTextEditIv), thisapp::typedText(*m_ui->plainTextEditKey)};
    m_iv = decodeHex(m_typed.iv.view()).value_or(SecretBytes());
    m_key = decodeHex(m_typed.key.view()).value_or(SecretBytes());
    m_seal = m_ui->checkBoxSeal->isChecked();
    m_useSalt = m_ui->checkBoxUseSalt->isChecked();
    m_rewriteOutputFile = m_ui->checkBoxRewrite->isChecked();
}

SecretText CSetKeyAndIvDialog::textToKeep() const
{
    const auto iv = decodeHex(thisapp::typedText(*m_ui->plainTextEditIv).view());
    const auto key = decodeHex(thisapp::typedText(*m_ui->plainTextEditKey).view());
    return thisapp::keyFileText(m_algorithmName.toStdString(), key.value_or(SecretBytes()),
                                iv.value_or(SecretBytes()));
}

/// Asks before it loses what somebody typed, loaded, or has kept already.
bool CSetKeyAndIvDialog::mayReplaceFields()
{
    const bool empty =
        m_ui->plainTextEditIv->document()->isEmpty() && m_ui->plainTextEditKey->document()->isEmpty();
    return empty || m_mayRegenerate ||
           QMessageBox::question(this, windowTitle(), tr("Replace the key and IV that stand in the fields?"),
                                 QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

void CSetKeyAndIvDialog::showFields(const SecretBytes& key, const SecretBytes& iv)
{
    thisapp::setTypedText(*m_ui->plainTextEditIv, encodeHex(iv));
    thisapp::setTypedText(*m_ui->plainTextEditKey, encodeHex(key));
}

void CSetKeyAndIvDialog::onUiGenerate()
{
    SecretBytes key;
    SecretBytes iv;
    if (!mayReplaceFields())
        return;
    if (!crypto::randomBytes(m_ivLength, iv).ok() || !crypto::randomBytes(m_keyLength, key).ok()) {
        m_ui->lineEditMsg->showMessage(tr("The system's random generator failed."), MessageKind::Error);
        return;
    }
    showFields(key, iv);
    m_mayRegenerate = true;
    m_ui->lineEditMsg->showMessage(
        tr("Copy or save the key and IV: without them the file cannot be decrypted."), MessageKind::Warning);
}

void CSetKeyAndIvDialog::onUiCopy()
{
    thisapp::copySecret(textToKeep());
    m_mayRegenerate = false;
    m_ui->lineEditMsg->showMessage(
        tr("The key and IV are on the clipboard for %Ln seconds.", "", thisapp::SecretClipboardSeconds),
        MessageKind::Success);
}

void CSetKeyAndIvDialog::onUiSave()
{
    const auto saved = thisapp::saveKeyFile(*this, m_disk, m_algorithmName, textToKeep());
    if (!saved)
        return;
    m_mayRegenerate = m_mayRegenerate && saved->kind != MessageKind::Success;
    m_ui->lineEditMsg->showMessage(saved->message, saved->kind);
}

void CSetKeyAndIvDialog::onUiLoad()
{
    const auto loaded = thisapp::loadKeyFile(*this, m_disk, m_algorithmName);
    if (!loaded || (loaded->key && !mayReplaceFields()))
        return;
    if (loaded->key)
        showFields(loaded->key->key, loaded->key->iv);
    // A success says less than what the check may have to say.
    if (loaded->kind != MessageKind::Success || check())
        m_ui->lineEditMsg->showMessage(loaded->message, loaded->kind);
}

void CSetKeyAndIvDialog::onUiOk()
{
    m_switchToNormal = false;
    if (!check())
        return;
    takeResults();
    accept();
}

void CSetKeyAndIvDialog::onUiCancel()
{
    reject();
}

void CSetKeyAndIvDialog::onUiSwitchToNormalMode(const QString& /*link*/)
{
    takeResults();
    m_switchToNormal = true;
    accept();
}

void CSetKeyAndIvDialog::clearFields()
{
    thisapp::clearSecret(*m_ui->plainTextEditIv);
    thisapp::clearSecret(*m_ui->plainTextEditKey);
}
