#pragma once

#include "common/settings/AlgSelection.h"
#include "lib/sync/Locker.h"
#include "lib/sync/SafeData.h"

#include <QDialog>
#include <memory>

class QListWidgetItem;

namespace thisapp {
class ICryptoAlgProvider;
}
namespace Ui {
class CSetAlgDialog;
}

/// Asks for one algorithm and whether it is to be the default.
class CSetAlgDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit CSetAlgDialog(QWidget* parent = nullptr);
    ~CSetAlgDialog() override;

    // Each of these takes effect on the next show. The provider must outlive the dialog.
    void setProvider(const thisapp::ICryptoAlgProvider& provider);
    void setSelection(const thisapp::AlgSelection& selection);
    void setUseAsDefault(bool use);

    /// (0, 0) while nothing is chosen.
    thisapp::AlgSelection selection() const { return m_selection; }
    bool useAsDefault() const { return m_useAsDefault; }

protected:
    void showEvent(QShowEvent* event) override;

private slots:
    void onUiCurrentAlgChanged(QListWidgetItem* current, QListWidgetItem* previous);

private:
    void fill();

    std::unique_ptr<Ui::CSetAlgDialog> m_ui;
    const thisapp::ICryptoAlgProvider* m_provider = nullptr;
    thisapp::AlgSelection m_selection;
    bool m_useAsDefault = false;
    tessaly::sync::internal::SafeData<tessaly::sync::Locker, bool> m_fillOnNextShow{true};
};
