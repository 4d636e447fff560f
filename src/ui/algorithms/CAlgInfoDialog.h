#pragma once

#include "common/settings/AlgSelection.h"
#include "lib/sync/Locker.h"
#include "lib/sync/SafeData.h"

#include <QDialog>
#include <QTimer>
#include <memory>

namespace thisapp {
class ICryptoAlgProvider;
}
namespace Ui {
class CAlgInfoDialog;
}

/// Prints the parameters of the algorithms that are selected in its list.
class CAlgInfoDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit CAlgInfoDialog(QWidget* parent = nullptr);
    ~CAlgInfoDialog() override;

    /// Takes effect on the next show. The provider must outlive the dialog.
    void setProvider(const thisapp::ICryptoAlgProvider& provider);
    /// The algorithm that is selected when the dialog opens; none by default.
    void setSelection(const thisapp::AlgSelection& selection);

protected:
    void showEvent(QShowEvent* event) override;

private slots:
    void onUiItemSelectionChanged();
    void onUiPrintAlgInfo();

private:
    void fill();

    std::unique_ptr<Ui::CAlgInfoDialog> m_ui;
    const thisapp::ICryptoAlgProvider* m_provider = nullptr;
    thisapp::AlgSelection m_selection;
    QTimer m_timer;
    tessaly::sync::internal::SafeData<tessaly::sync::Locker, bool> m_fillOnNextShow{true};
};
