#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class CAboutDialog;
}

/// The program's name and version, and what it runs on.
class CAboutDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CAboutDialog(QWidget* parent = nullptr);
    ~CAboutDialog() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void showIcon();

    std::unique_ptr<Ui::CAboutDialog> m_ui;
};
