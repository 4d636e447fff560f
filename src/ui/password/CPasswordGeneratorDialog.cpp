#include "ui/password/CPasswordGeneratorDialog.h"

#include "ui/password/PasswordStrength.h"
#include "ui/password/SecretClipboard.h"
#include "ui/password/SecretFields.h"
#include "ui/style/FitToScreen.h"
#include "ui/style/PlainToolTip.h"
#include "ui_CPasswordGeneratorDialog.h"

#include <QFontDatabase>
#include <QShowEvent>

using thisapp::MessageKind;
using thisapp::PasswordKind;

namespace {

struct SCounts
{
    int least;
    int proposed;
    int most;
};

/// Proposes what counts as very strong; the least still takes a year to guess.
SCounts countsOf(PasswordKind kind)
{
    return kind == PasswordKind::Words ? SCounts{5, 6, 12} : SCounts{10, 16, 64};
}

} // namespace

CPasswordGeneratorDialog::CPasswordGeneratorDialog(QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::CPasswordGeneratorDialog>())
{
    m_ui->setupUi(this);
    m_ui->comboKind->addItem(tr("Random words"));
    m_ui->comboKind->addItem(tr("Random characters"));
    for (auto* inner : m_ui->spinCount->findChildren<QLineEdit*>())
        inner->setAccessibleName(m_ui->spinCount->accessibleName());
    QLineEdit& field = *m_ui->lineEditPassword;
    field.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    constexpr int ShownCharacters = 58;
    field.setMinimumWidth(QFontMetrics(field.font()).averageCharWidth() * ShownCharacters);
    m_ui->buttonCopy->setAccessibleDescription(
        tr("Puts the password on the clipboard, from where it is removed after %Ln seconds.", "",
           thisapp::SecretClipboardSeconds));
    thisapp::showDescriptionAsToolTip(*m_ui->buttonCopy);
    onUiKindChanged();

    connect(m_ui->comboKind, qOverload<int>(&QComboBox::currentIndexChanged), this, [this] {
        onUiKindChanged();
        onUiGenerate();
    });
    connect(m_ui->spinCount, qOverload<int>(&QSpinBox::valueChanged), this,
            &CPasswordGeneratorDialog::onUiGenerate);
    connect(m_ui->buttonAnother, &QPushButton::clicked, this, &CPasswordGeneratorDialog::onUiGenerate);
    connect(m_ui->buttonCopy, &QPushButton::clicked, this, &CPasswordGeneratorDialog::onUiCopy);
    connect(m_ui->buttonUse, &QPushButton::clicked, this, &CPasswordGeneratorDialog::onUiUse);
    connect(m_ui->buttonCancel, &QPushButton::clicked, this, &QDialog::reject);
}

CPasswordGeneratorDialog::~CPasswordGeneratorDialog() = default;

PasswordKind CPasswordGeneratorDialog::kind() const
{
    return m_ui->comboKind->currentIndex() == 0 ? PasswordKind::Words : PasswordKind::Characters;
}

void CPasswordGeneratorDialog::showEvent(QShowEvent* event)
{
    if (!event->spontaneous()) {
        m_password = {};
        onUiGenerate();
        thisapp::fitToScreen(*this);
    }
    QDialog::showEvent(event);
}

void CPasswordGeneratorDialog::hideEvent(QHideEvent* event)
{
    if (!event->spontaneous())
        thisapp::clearSecret(*m_ui->lineEditPassword);
    QDialog::hideEvent(event);
}

void CPasswordGeneratorDialog::onUiKindChanged()
{
    const SCounts counts = countsOf(kind());
    const QSignalBlocker blocker(m_ui->spinCount);
    m_ui->spinCount->setRange(counts.least, counts.most);
    m_ui->spinCount->setValue(counts.proposed);
}

void CPasswordGeneratorDialog::onUiGenerate()
{
    QLineEdit& field = *m_ui->lineEditPassword;
    thisapp::clearSecret(field);
    const auto made = thisapp::generatePassword(kind(), m_ui->spinCount->value());
    m_ui->buttonCopy->setEnabled(made.has_value());
    m_ui->buttonUse->setEnabled(made.has_value());
    if (!made) {
        m_ui->lineEditMsg->showMessage(tr("The system's random generator failed."), MessageKind::Error);
        return;
    }
    field.setText(QString::fromUtf8(made->text.c_str(), static_cast<int>(made->text.size())));
    field.setCursorPosition(0);
    const thisapp::SStrengthNotice notice = thisapp::strengthNotice(made->bits);
    m_ui->strengthBar->showStrength(notice);
    m_ui->labelStrength->showMessage(
        notice.text + QLatin1Char(' ') + tr("%Ln bits.", "", static_cast<int>(made->bits)), notice.kind);
    m_ui->lineEditMsg->showMessage(
        tr("Keep it where you will find it: without it the file cannot be decrypted."), MessageKind::Plain);
}

void CPasswordGeneratorDialog::onUiCopy()
{
    thisapp::copySecret(thisapp::secretText(m_ui->lineEditPassword->text()));
    m_ui->lineEditMsg->showMessage(
        tr("The password is on the clipboard for %Ln seconds.", "", thisapp::SecretClipboardSeconds),
        MessageKind::Success);
}

void CPasswordGeneratorDialog::onUiUse()
{
    m_password = thisapp::secretText(m_ui->lineEditPassword->text());
    accept();
}
