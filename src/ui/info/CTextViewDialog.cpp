#include "ui/info/CTextViewDialog.h"

#include "ui/style/FitToScreen.h"
#include "ui/style/TextSize.h"
#include "ui_CTextViewDialog.h"

#include <QFontDatabase>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>

CTextViewDialog::CTextViewDialog(QWidget* parent) : QDialog(parent), m_ui(new Ui::CTextViewDialog)
{
    m_ui->setupUi(this);
    m_ui->text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_ui->buttonRefresh->hide();
    connect(m_ui->buttonRefresh, &QPushButton::clicked, this, &CTextViewDialog::onUiRefresh);
    connect(new QShortcut(QKeySequence::Refresh, this), &QShortcut::activated, this,
            &CTextViewDialog::onUiRefresh);
    thisapp::fitToScreen(*this, thisapp::textSize(*this, 100, 30));
}

CTextViewDialog::~CTextViewDialog() = default;

void CTextViewDialog::setText(const QString& text)
{
    m_ui->text->setPlainText(text);
}

void CTextViewDialog::setSource(TextSource source)
{
    m_source = std::move(source);
    m_ui->buttonRefresh->setVisible(m_source != nullptr);
    onUiRefresh();
}

void CTextViewDialog::onUiRefresh()
{
    if (!m_source)
        return;
    setText(m_source());
    m_ui->text->verticalScrollBar()->setValue(m_ui->text->verticalScrollBar()->maximum());
    m_ui->text->moveCursor(QTextCursor::End);
}
