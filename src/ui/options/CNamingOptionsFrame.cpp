#include "ui/options/CNamingOptionsFrame.h"

#include "common/naming/NamingSettings.h"
#include "common/settings/TextRules.h"
#include "ui/style/ReadOnlyField.h"
#include "ui_CNamingOptionsFrame.h"

#include <QEvent>
#include <QRegularExpressionValidator>

namespace {

QString bareExtension(const QString& typed)
{
    QString ext = typed.trimmed();
    while (ext.startsWith(QLatin1Char('.')))
        ext.remove(0, 1);
    return ext;
}

} // namespace

CNamingOptionsFrame::CNamingOptionsFrame(QWidget* parent) : QFrame(parent), m_ui(new Ui::CNamingOptionsFrame)
{
    m_ui->setupUi(this);
    thisapp::showAsReadOnly(*m_ui->editSample);
    pair(m_ui->checkExt, m_ui->editExt, &CNamingOptionsFrame::addExtChanged,
         &CNamingOptionsFrame::extChanged);
    pair(m_ui->checkSuffix, m_ui->editSuffix, &CNamingOptionsFrame::addSuffixChanged,
         &CNamingOptionsFrame::suffixChanged);
    pair(m_ui->checkPrefix, m_ui->editPrefix, &CNamingOptionsFrame::addPrefixChanged,
         &CNamingOptionsFrame::prefixChanged);
    connect(m_ui->checkDate, &QCheckBox::stateChanged, this, &CNamingOptionsFrame::addDateChanged);
}

CNamingOptionsFrame::~CNamingOptionsFrame() = default;

void CNamingOptionsFrame::pair(QCheckBox* box, QLineEdit* edit, StateSignal stateChanged,
                               TextSignal textChanged)
{
    edit->setValidator(new QRegularExpressionValidator(thisapp::namePartPattern(), edit));
    edit->setEnabled(box->isChecked());
    connect(box, &QCheckBox::toggled, edit, &QLineEdit::setEnabled);
    connect(box, &QCheckBox::stateChanged, this, stateChanged);
    connect(edit, &QLineEdit::textChanged, this, textChanged);
}

void CNamingOptionsFrame::setTexts(const STexts& texts)
{
    m_ui->group->setTitle(texts.title);
    m_ui->checkExt->setText(texts.addExt);
    m_ui->checkSuffix->setText(texts.addSuffix);
    m_ui->checkPrefix->setText(texts.addPrefix);
    m_ui->checkDate->setText(texts.addDate);
    m_ui->labelSample->setText(texts.sample);
}

void CNamingOptionsFrame::setParts(const thisapp::NameParts& parts)
{
    m_ui->checkExt->setChecked(parts.addExt);
    m_ui->checkSuffix->setChecked(parts.addSuffix);
    m_ui->checkPrefix->setChecked(parts.addPrefix);
    m_ui->checkDate->setChecked(parts.addDate);
    m_ui->editExt->setText(parts.ext);
    m_ui->editSuffix->setText(parts.suffix);
    m_ui->editPrefix->setText(parts.prefix);
}

thisapp::NameParts CNamingOptionsFrame::parts() const
{
    return {
        m_ui->checkExt->isChecked(),  m_ui->checkSuffix->isChecked(),       m_ui->checkPrefix->isChecked(),
        m_ui->checkDate->isChecked(), bareExtension(m_ui->editExt->text()), m_ui->editSuffix->text(),
        m_ui->editPrefix->text()};
}

void CNamingOptionsFrame::setSample(const QString& fileName)
{
    m_ui->editSample->setText(fileName);
    m_ui->editSample->setCursorPosition(0);
}

void CNamingOptionsFrame::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        m_ui->retranslateUi(this);
}
