#include "ui/password/CSetKeyAndIvDialog.h"

#include "common/path/PathText.h"
#include "crypto/key/RandomBytes.h"
#include "io/PrivateFile.h"
#include "lib/secret/Hex.h"
#include "ui/password/HexCheck.h"
#include "ui/password/KeyAndIvText.h"
#include "ui/password/SecretFields.h"
#include "ui/style/PlainToolTip.h"
#include "ui/style/TextSize.h"
#include "ui_CSetKeyAndIvDialog.h"

#include <QClipboard>
#include <QFileDialog>
#include <QLocale>
#include <QMimeData>
#include <QShowEvent>

using namespace tessaly;
using thisapp::HexInput;
using thisapp::MessageKind;

namespace {

/// Shows the check's outcome at the field and gives it back.
thisapp::SHexCheck checkField(HexInput input, CHexEdit& field, QLabel& count, std::uint32_t expectedLength)
{
    thisapp::SHexCheck check = thisapp::checkHex(input, thisapp::typedText(field), expectedLength);
    field.showValidity(check.passed());
    count.setText(CSetKeyAndIvDialog::tr("%1 of %2 bytes entered")
                      .arg(QLocale().toString(check.byteCount), QLocale().toString(expectedLength)));
    return check;
}

} // namespace

CSetKeyAndIvDialog::CSetKeyAndIvDialog(QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::CSetKeyAndIvDialog>())
{
    m_ui->setupUi(this);
    m_ui->labelNormalMode->setLinkText(tr("Show simple options"));
    m_ui->lineEditMsg->setMinimumWidth(thisapp::textSize(*this, 90, 1).width());
    thisapp::showDescriptionAsToolTip(*m_ui->checkBoxSeal);
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
    m_ui->frameTools->setVisible(m_encrypt);
    m_ui->checkBoxSeal->setChecked(m_seal);
    m_ui->checkBoxUseSalt->setChecked(m_useSalt);
    m_ui->checkBoxRewrite->setChecked(m_rewriteOutputFile);
    m_ui->plainTextEditIv->setExpectedLength(m_ivLength);
    m_ui->plainTextEditKey->setExpectedLength(m_keyLength);

    m_key.clear();
    m_iv.clear();
    m_switchToNormal = false;
    fillFields();
    m_ui->plainTextEditIv->setFocus();
    adjustSize();
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
    check();
}

void CSetKeyAndIvDialog::onUiIvChanged()
{
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
    return thisapp::keyAndIvText(m_algorithmName, key.value_or(SecretBytes()), iv.value_or(SecretBytes()));
}

void CSetKeyAndIvDialog::onUiGenerate()
{
    SecretBytes key;
    SecretBytes iv;
    if (!crypto::randomBytes(m_ivLength, iv).ok() || !crypto::randomBytes(m_keyLength, key).ok()) {
        m_ui->lineEditMsg->showMessage(tr("The system's random generator failed."), MessageKind::Error);
        return;
    }
    thisapp::setTypedText(*m_ui->plainTextEditIv, encodeHex(iv));
    thisapp::setTypedText(*m_ui->plainTextEditKey, encodeHex(key));
    m_ui->lineEditMsg->showMessage(
        tr("Copy or save the key and IV: without them the file cannot be decrypted."), MessageKind::Warning);
}

void CSetKeyAndIvDialog::onUiCopy()
{
    const SecretText text = textToKeep();
    auto* mimeData = new QMimeData;
    mimeData->setText(QString::fromUtf8(text.c_str(), static_cast<int>(text.size())));
    // Asks clipboard managers to keep it out of their history.
    mimeData->setData(QStringLiteral("x-kde-passwordManagerHint"), QByteArrayLiteral("secret"));
    QGuiApplication::clipboard()->setMimeData(mimeData);
    m_ui->lineEditMsg->showMessage(tr("The key and IV are on the clipboard."), MessageKind::Success);
}

void CSetKeyAndIvDialog::onUiSave()
{
    const QString path = QFileDialog::getSaveFileName(this, tr("Save key and IV"),
                                                      tr("%1 key and IV.txt").arg(m_algorithmName),
                                                      tr("Text files") + QStringLiteral(" (*.txt)"));
    if (path.isEmpty())
        return;
    const auto saved =
        m_disk.start<std::optional<ResultCode>>([file = thisapp::textPath(path), text = textToKeep()] {
            return io::writePrivateFile(file, text.view());
        });
    if (!m_disk.wait(saved) || !saved.get())
        m_ui->lineEditMsg->showMessage(
            tr("The key and IV could not be saved: %1").arg(tr("no answer from the disk")),
            MessageKind::Error);
    else if (saved.get()->ok())
        m_ui->lineEditMsg->showMessage(tr("The key and IV were saved. Only you can read the file."),
                                       MessageKind::Success);
    else
        m_ui->lineEditMsg->showMessage(tr("The key and IV could not be saved: %1")
                                           .arg(qt_error_string(static_cast<int>(saved.get()->code))),
                                       MessageKind::Error);
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
