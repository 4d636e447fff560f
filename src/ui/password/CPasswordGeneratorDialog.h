#pragma once

#include "common/secret/PasswordGenerator.h"

#include <QDialog>
#include <memory>

namespace Ui {
class CPasswordGeneratorDialog;
}

/// Makes random passwords until the user takes one. What it showed is wiped when it closes.
class CPasswordGeneratorDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit CPasswordGeneratorDialog(QWidget* parent = nullptr);
    ~CPasswordGeneratorDialog() override;

    /// Empty unless accepted.
    const tessaly::SecretText& password() const { return m_password; }

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private slots:
    void onUiKindChanged();
    void onUiGenerate();
    void onUiCopy();
    void onUiUse();

private:
    thisapp::PasswordKind kind() const;

    std::unique_ptr<Ui::CPasswordGeneratorDialog> m_ui;
    tessaly::SecretText m_password;
};
