#include "ui/info/CkeyboardShortcutInfoDialog.h"

#include "ui/style/FitToScreen.h"
#include "ui/style/TextDirection.h"
#include "ui/style/TextSize.h"
#include "ui_CkeyboardShortcutInfoDialog.h"

#include <QCoreApplication>

CkeyboardShortcutInfoDialog::CkeyboardShortcutInfoDialog(QWidget* parent)
    : QDialog(parent), m_ui(new Ui::CkeyboardShortcutInfoDialog)
{
    m_ui->setupUi(this);
    thisapp::fitToScreen(*this, thisapp::textSize(*this, 72, 18));
}

CkeyboardShortcutInfoDialog::~CkeyboardShortcutInfoDialog() = default;

void CkeyboardShortcutInfoDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    QString html = "<html><body>";
    html += tr("This is a list of keyboard shortcuts in %1.")
                .arg(QCoreApplication::applicationName().toHtmlEscaped());
    html += "<br/><br/>";
    for (const thisapp::Shortcut& shortcut : m_shortcuts) {
        html += "<b>" + thisapp::leftToRight(shortcut.keyText()) + "</b> - ";
        html += shortcut.translatedDescription().toHtmlEscaped() + "<br/>";
    }
    html += "</body></html>";
    m_ui->text->setHtml(html);
    thisapp::followLanguageSide(*m_ui->text->document());
}
