#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class CkeyboardShortcutInfoDialog;
}

/// Lists the keyboard shortcuts of the main window.
class CkeyboardShortcutInfoDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CkeyboardShortcutInfoDialog(QWidget* parent = nullptr);
    ~CkeyboardShortcutInfoDialog() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    std::unique_ptr<Ui::CkeyboardShortcutInfoDialog> m_ui;
};
