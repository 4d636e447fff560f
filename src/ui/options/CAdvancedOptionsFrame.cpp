#include "ui/options/CAdvancedOptionsFrame.h"

#include "common/settings/SAppOptions.h"
#include "lib/logger/Level.h"
#include "ui/style/PlainToolTip.h"
#include "ui/style/ReadOnlyField.h"
#include "ui_CAdvancedOptionsFrame.h"

#include <QEvent>

CAdvancedOptionsFrame::CAdvancedOptionsFrame(QWidget* parent)
    : QFrame(parent), m_ui(new Ui::CAdvancedOptionsFrame)
{
    m_ui->setupUi(this);
    thisapp::showAsReadOnly(*m_ui->editLogFile);
    for (const auto& row : tessaly::logger::levels<char>) {
        const std::string_view name = row.name.view();
        m_ui->comboLevel->addItem(QString::fromLatin1(name.data(), static_cast<int>(name.size())),
                                  static_cast<unsigned>(row.level));
    }
    m_ui->labelViewLog->setLinkText(tr("View log file"));
    thisapp::showDescriptionsAsToolTips(*this);
    connect(m_ui->comboLevel, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &CAdvancedOptionsFrame::changed);
    connect(m_ui->checkUseLogFile, &QCheckBox::toggled, this, &CAdvancedOptionsFrame::changed);
    connect(m_ui->labelViewLog, &QLabel::linkActivated, this,
            [this] { emit viewLogFileClicked(m_ui->editLogFile->text()); });
}

CAdvancedOptionsFrame::~CAdvancedOptionsFrame() = default;

void CAdvancedOptionsFrame::setLogFilePath(const QString& path)
{
    m_ui->editLogFile->setText(path);
    m_ui->editLogFile->setCursorPosition(0);
    thisapp::setPlainToolTip(*m_ui->editLogFile, path);
}

void CAdvancedOptionsFrame::setOptions(const thisapp::SAppOptions& options)
{
    m_ui->comboLevel->setCurrentIndex(m_ui->comboLevel->findData(options.logLevel));
    m_ui->checkUseLogFile->setChecked(options.useLogFile);
}

void CAdvancedOptionsFrame::store(thisapp::SAppOptions& options) const
{
    options.logLevel = m_ui->comboLevel->currentData().toUInt();
    options.useLogFile = m_ui->checkUseLogFile->isChecked();
}

void CAdvancedOptionsFrame::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        m_ui->labelViewLog->setLinkText(tr("View log file"));
        thisapp::showDescriptionsAsToolTips(*this);
    }
}
