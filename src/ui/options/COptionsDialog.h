#pragma once

#include "common/settings/SAppOptions.h"
#include "lib/i18n/locale/Language.h"
#include "ui/shortcuts/Shortcut.h"

#include <QDialog>

#include <memory>
#include <vector>

namespace thisapp {
class IAppOptionsChanged;
struct SAppliedOptions;
class ICryptoAlgProvider;
} // namespace thisapp
namespace Ui {
class COptionsDialog;
}

/// Edits every setting. It never touches the settings store: the caller sets the values, runs the
/// dialog, and after acceptance takes the values and makes them take effect. "Apply" does that at
/// once through the receiver and leaves the dialog open.
class COptionsDialog : public QDialog
{
    Q_OBJECT

public:
    explicit COptionsDialog(QWidget* parent = nullptr);
    ~COptionsDialog() override;

    void setLanguages(const std::vector<tessaly::i18n::Language>& languages);
    /// Offers the provider's algorithms as the default one; it is read at once and not kept.
    void setAlgProvider(const thisapp::ICryptoAlgProvider& provider);
    /// What the dialog lists for reading.
    void setShortcuts(const thisapp::Shortcuts& shortcuts);
    void setLogFilePath(const QString& path);
    /// Gets what "Apply" takes over; may be null. It must outlive the dialog.
    void setReceiver(thisapp::IAppOptionsChanged* receiver) { m_receiver = receiver; }

    /// What the dialog shows when it opens.
    void setOptions(const thisapp::SAppOptions& options) { m_options = m_taken = options; }
    /// A sentence that the dialog opens with: what of the options is not in effect. May be empty.
    void setProblem(const QString& problem) { m_problem = problem; }
    /// What came of the options that the dialog returned, for the next time it opens.
    void setApplied(const thisapp::SAppliedOptions& applied);
    /// What OK or Apply took over last; what was set as long as neither did. The default algorithm is
    /// none unless the user chose it here, so that what the window has selected stays.
    const thisapp::SAppOptions& options() const { return m_taken; }

public slots:
    void onUiOk();
    void onUiApply();
    void onUiCancel();
    void onUiRestoreDefaults();
    void onUiOpenDefaultOutputDir();
    void onUiLanguageChanged(int index);
    void onUiViewLogFileClicked(const QString& path);
    void onUiDeleteSourceFileAfterEncryptionChanged(int state);

    void onUiEncFileNameAddExtChanged(int) { updateSamples(); }
    void onUiEncFileNameAddSuffixChanged(int) { updateSamples(); }
    void onUiEncFileNameAddPrefixChanged(int) { updateSamples(); }
    void onUiEncFileNameAddDateChanged(int) { updateSamples(); }
    void onUiEncFileNameExtChanged(const QString&) { updateSamples(); }
    void onUiEncFileNameSuffixChanged(const QString&) { updateSamples(); }
    void onUiEncFileNamePrefixChanged(const QString&) { updateSamples(); }
    void onUiDecFileNameAddExtChanged(int) { updateSamples(); }
    void onUiDecFileNameAddSuffixChanged(int) { updateSamples(); }
    void onUiDecFileNameAddPrefixChanged(int) { updateSamples(); }
    void onUiDecFileNameAddDateChanged(int) { updateSamples(); }
    void onUiDecFileNameExtChanged(const QString&) { updateSamples(); }
    void onUiDecFileNameSuffixChanged(const QString&) { updateSamples(); }
    void onUiDecFileNamePrefixChanged(const QString&) { updateSamples(); }

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void connectNaming();
    void setNamingTexts();
    thisapp::SAppOptions shownOptions() const;
    void showOptions(const thisapp::SAppOptions& options);
    bool takeOver();
    void updateSamples();
    void settle();

    std::unique_ptr<Ui::COptionsDialog> m_ui;
    thisapp::IAppOptionsChanged* m_receiver = nullptr;
    thisapp::SAppOptions m_options;
    thisapp::SAppOptions m_taken;
    thisapp::SAppOptions m_settled; ///< what the controls showed when nothing had been changed
    QString m_problem;
};
