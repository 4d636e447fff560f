#include "ui/info/CAboutDialog.h"

#include "crypto/cryptopp/LibraryVersion.h"
#include "ui_CAboutDialog.h"

#include <QApplication>
#include <QIcon>
#include <QLayout>
#include <QWindow>

CAboutDialog::CAboutDialog(QWidget* parent) : QDialog(parent), m_ui(new Ui::CAboutDialog)
{
    m_ui->setupUi(this);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

CAboutDialog::~CAboutDialog() = default;

void CAboutDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    const QString name = QCoreApplication::applicationName();
    setWindowTitle(tr("About %1").arg(name));

    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.8);
    large.setBold(true);
    m_ui->labelName->setFont(large);
    m_ui->labelName->setText(name);
    m_ui->labelVersion->setText(tr("Version %1").arg(QStringLiteral(QUILLET_VERSION)));
    m_ui->labelQt->setText(QString::fromLatin1(qVersion()));
    m_ui->labelCryptoPP->setText(QString::fromStdString(tessaly::cryptopp::libraryVersion()));
    showIcon();
}

void CAboutDialog::showIcon()
{
    const int side = m_ui->labelName->sizeHint().height() * 2;
    m_ui->labelIcon->setPixmap(QApplication::windowIcon().pixmap(windowHandle(), QSize(side, side)));
    m_ui->labelIcon->setVisible(!QApplication::windowIcon().isNull());
}
