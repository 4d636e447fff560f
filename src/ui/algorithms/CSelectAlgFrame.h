#pragma once

#include "common/settings/AlgSelection.h"

#include <QFrame>
#include <memory>

namespace thisapp {
class ICryptoAlgProvider;
}
namespace Ui {
class CSelectAlgFrame;
}

/// The "Algorithm:" selector: a combo box with every algorithm that the provider offers.
class CSelectAlgFrame final : public QFrame
{
    Q_OBJECT

public:
    explicit CSelectAlgFrame(QWidget* parent = nullptr);
    ~CSelectAlgFrame() override;

    /// Fills the combo box; the current selection stays if the provider accepts it. The provider
    /// must outlive the frame.
    void setProvider(const thisapp::ICryptoAlgProvider& provider);

    /// (0, 0) while nothing is chosen.
    thisapp::AlgSelection selection() const;
    /// False, and nothing changes, when the provider doesn't accept the pair.
    bool setSelection(const thisapp::AlgSelection& selection);

    /// In device-independent pixels; to line the combo box up with other fields.
    int labelWidth() const;
    void setLabelWidth(int width);

signals:
    /// The user, not the program, chose another algorithm.
    void notifyAlgChanged();

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void onUiAlgActivated(int index);

private:
    void showAdvice();

    std::unique_ptr<Ui::CSelectAlgFrame> m_ui;
    const thisapp::ICryptoAlgProvider* m_provider = nullptr;
    int m_reportedIndex = -1;
};
