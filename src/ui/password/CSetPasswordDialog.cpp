#include "ui/password/CSetPasswordDialog.h"

#include "common/secret/PasswordRules.h"
#include "lib/platform/CapsLock.h"
#include "ui/password/CPasswordGeneratorDialog.h"
#include "ui/password/CapsLockWatcher.h"
#include "ui/password/PasswordStrength.h"
#include "ui/password/SecretFields.h"
#include "ui/style/EyeIcon.h"
#include "ui/style/FitToScreen.h"
#include "ui/style/PlainToolTip.h"
#include "ui/style/TextSize.h"
#include "ui_CSetPasswordDialog.h"

#include <QAction>
#include <QCoreApplication>
#include <QLocale>
#include <QMessageBox>
#include <QShowEvent>

CSetPasswordDialog::CSetPasswordDialog(QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::CSetPasswordDialog>())
{
    m_ui->setupUi(this);
    m_ui->pageContents->setMinimumWidth(thisapp::textSize(*this, 56, 1).width());
    m_ui->labelStrength->setMinimumHeight(m_ui->labelPassword->sizeHint().height());
    m_ui->labelAdvancedMode->setLinkText(tr("Show advanced options"));
    thisapp::showDescriptionsAsToolTips(*this);
    addEye();
    connectWidgets();
}

CSetPasswordDialog::~CSetPasswordDialog()
{
    clearFields();
}

void CSetPasswordDialog::connectWidgets()
{
    connect(m_ui->lineEditPassword, &QLineEdit::textChanged, this, &CSetPasswordDialog::onUiPasswordChanged);
    connect(m_ui->lineEditConfirmPassword, &QLineEdit::textChanged, this,
            &CSetPasswordDialog::onUiConfirmPasswordChanged);
    connect(m_ui->checkBoxShowPassword, &QCheckBox::toggled, this,
            &CSetPasswordDialog::onUiShowPasswordToggled);
    connect(m_ui->buttonGenerate, &QPushButton::clicked, this, &CSetPasswordDialog::onUiGenerate);
    connect(m_ui->labelAdvancedMode, &QLabel::linkActivated, this,
            &CSetPasswordDialog::onUiSwitchToAdvancedMode);
    connect(m_ui->checkBoxSeal, &QCheckBox::toggled, m_ui->checkBoxUseSalt, &QWidget::setDisabled);
    connect(m_ui->buttonOk, &QPushButton::clicked, this, &CSetPasswordDialog::onUiOk);
    connect(m_ui->buttonCancel, &QPushButton::clicked, this, &CSetPasswordDialog::onUiCancel);

    auto* capsLock = new CapsLockWatcher(tessaly::platform::capsLockOn, this);
    capsLock->watch(*m_ui->lineEditPassword);
    capsLock->watch(*m_ui->lineEditConfirmPassword);
    connect(capsLock, &CapsLockWatcher::notifyCapsLockChanged, this,
            &CSetPasswordDialog::onUiCapsLockChanged);
}

/// The check box for the mouse that is at the field already.
void CSetPasswordDialog::addEye()
{
    m_eye = m_ui->lineEditPassword->addAction(thisapp::eyeIcon(false), QLineEdit::TrailingPosition);
    m_eye->setCheckable(true);
    connect(m_eye, &QAction::triggered, m_ui->checkBoxShowPassword, &QCheckBox::setChecked);
}

void CSetPasswordDialog::setSubject(const QString& fileName, int others)
{
    m_ui->labelSubject->setSubject(fileName, others);
}

void CSetPasswordDialog::showEvent(QShowEvent* event)
{
    if (!event->spontaneous())
        prepare();
    QDialog::showEvent(event);
}

void CSetPasswordDialog::hideEvent(QHideEvent* event)
{
    if (!event->spontaneous()) // a minimised window keeps what was typed
        clearFields();
    QDialog::hideEvent(event);
}

void CSetPasswordDialog::prepare()
{
    setWindowTitle(m_encrypt ? tr("Password to encrypt") : tr("Password to decrypt"));
    const QString info = m_encrypt ? tr("Remember the name of the encryption algorithm and password. \r\n"
                                        "These data will be needed to decrypt the file. \r\n"
                                        "Selected cryptographic algorithm: %1.")
                                   : tr("Enter the password to decrypt the file. \r\n"
                                        "Selected cryptographic algorithm: %1.");
    m_ui->textEditInfo->showText(info.arg(m_algorithmName));
    setAccessibleDescription(m_ui->textEditInfo->toPlainText());

    m_ui->frameConfirmPassword->setVisible(confirms());
    for (QWidget* widget :
         {static_cast<QWidget*>(m_ui->strengthBar), static_cast<QWidget*>(m_ui->labelStrength),
          static_cast<QWidget*>(m_ui->buttonGenerate)})
        widget->setVisible(m_encrypt);
    m_ui->checkBoxSeal->setVisible(m_encrypt);
    m_ui->checkBoxUseSalt->setVisible(m_encrypt);
    m_ui->labelAdvancedMode->setVisible(m_showAdvancedOptions);
    m_ui->checkBoxSeal->setChecked(m_seal);
    m_ui->checkBoxUseSalt->setChecked(m_useSalt);
    m_ui->checkBoxRewrite->setChecked(m_rewriteOutputFile);
    m_ui->checkBoxShowPassword->setChecked(m_showPassword);
    onUiShowPasswordToggled(m_showPassword);

    m_password = {};
    m_switchToAdvanced = false;
    clearFields();
    showStrength(QString());
    checkPasswords();
    for (QLineEdit* field : {m_ui->lineEditPassword, m_ui->lineEditConfirmPassword})
        thisapp::prepareSecret(*field);
    m_ui->lineEditPassword->setFocus();
    thisapp::fitToScreen(*this);
}

void CSetPasswordDialog::onUiPasswordChanged(const QString& text)
{
    showStrength(text);
    checkPasswords();
}

void CSetPasswordDialog::onUiConfirmPasswordChanged(const QString& /*text*/)
{
    checkPasswords();
}

void CSetPasswordDialog::onUiShowPasswordToggled(bool show)
{
    m_eye->setChecked(show);
    m_eye->setIcon(thisapp::eyeIcon(show));
    m_eye->setText(show ? tr("Hide password") : tr("Show password"));
    const QLineEdit::EchoMode mode = show ? QLineEdit::Normal : QLineEdit::Password;
    for (QLineEdit* field : {m_ui->lineEditPassword, m_ui->lineEditConfirmPassword}) {
        field->setEchoMode(mode);
        field->setInputMethodHints(field->inputMethodHints() | Qt::ImhSensitiveData |
                                   Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase);
    }
}

void CSetPasswordDialog::onUiCapsLockChanged(bool on)
{
    m_ui->labelCapsLock->showMessage(on ? tr("Caps Lock is on.") : QString(), thisapp::MessageKind::Warning);
}

void CSetPasswordDialog::onUiGenerate()
{
    CPasswordGeneratorDialog generator(this);
    if (generator.exec() != QDialog::Accepted)
        return;
    const bool typed =
        !m_ui->lineEditPassword->text().isEmpty() || !m_ui->lineEditConfirmPassword->text().isEmpty();
    if (typed &&
        QMessageBox::question(this, windowTitle(), tr("Replace the password that stands in the field?"),
                              QMessageBox::Yes | QMessageBox::No, QMessageBox::No) != QMessageBox::Yes)
        return;
    QString password =
        QString::fromUtf8(generator.password().c_str(), static_cast<int>(generator.password().size()));
    m_ui->lineEditPassword->setText(password);
    m_ui->lineEditConfirmPassword->setText(password);
    m_ui->buttonOk->setFocus();
}

/// True unless the password can't be taken, or a confirmation is asked for and differs; shows what is
/// wrong.
bool CSetPasswordDialog::checkPasswords()
{
    // First, as nobody can see such a character: the field prints it as a blank.
    if (const char* problem = thisapp::passwordProblem(secretPassword().view())) {
        m_ui->lineEditMsg->showMessage(QCoreApplication::translate("PasswordRules", problem),
                                       thisapp::MessageKind::Warning);
        return false;
    }
    const QString password = m_ui->lineEditPassword->text();
    const QString confirmation = m_ui->lineEditConfirmPassword->text();
    if (!confirms() || password == confirmation) {
        m_ui->lineEditMsg->clearMessage();
        return true;
    }
    const QString lengths =
        password.size() == confirmation.size()
            ? tr("Password length: %1").arg(QLocale().toString(password.size()))
            : tr("Password length: %1/%2")
                  .arg(QLocale().toString(password.size()), QLocale().toString(confirmation.size()));
    m_ui->lineEditMsg->showMessage(tr("The passwords do not match.") + QLatin1Char(' ') + lengths,
                                   thisapp::MessageKind::Warning);
    return false;
}

tessaly::SecretText CSetPasswordDialog::secretPassword() const
{
    return thisapp::secretText(m_ui->lineEditPassword->text());
}

void CSetPasswordDialog::showStrength(const QString& password)
{
    if (!m_encrypt)
        return;
    const thisapp::SStrengthNotice notice = thisapp::strengthNotice(password);
    m_ui->strengthBar->showStrength(notice);
    m_ui->labelStrength->showMessage(notice.text, notice.kind);
}

void CSetPasswordDialog::storeOptions()
{
    m_seal = m_ui->checkBoxSeal->isChecked();
    m_useSalt = m_ui->checkBoxUseSalt->isChecked();
    m_rewriteOutputFile = m_ui->checkBoxRewrite->isChecked();
}

void CSetPasswordDialog::onUiOk()
{
    storeOptions();
    m_switchToAdvanced = false;
    if (!checkPasswords()) {
        m_ui->lineEditConfirmPassword->setFocus();
        return;
    }
    m_password = secretPassword();
    accept();
}

void CSetPasswordDialog::onUiCancel()
{
    reject();
}

void CSetPasswordDialog::onUiSwitchToAdvancedMode(const QString& /*link*/)
{
    storeOptions();
    m_switchToAdvanced = true;
    accept();
}

void CSetPasswordDialog::clearFields()
{
    thisapp::clearSecret(*m_ui->lineEditPassword);
    thisapp::clearSecret(*m_ui->lineEditConfirmPassword);
}
