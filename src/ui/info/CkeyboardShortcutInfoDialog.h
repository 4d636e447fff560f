#pragma once

#include "ui/shortcuts/Shortcut.h"

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

    /// What the dialog lists when it opens, in this order.
    void setShortcuts(const thisapp::Shortcuts& shortcuts) { m_shortcuts = shortcuts; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    std::unique_ptr<Ui::CkeyboardShortcutInfoDialog> m_ui;
    thisapp::Shortcuts m_shortcuts;
};
