#pragma once

#include "lib/secret/Secret.h"

#include <QDialog>
#include <memory>

class QAction;
namespace Ui {
class CSetPasswordDialog;
}

/// Asks for the password of one operation. Set it up, run exec() and, when accepted, read the
/// results; with switchToAdvanced() the user asked for the key and IV dialog instead. What is typed
/// is wiped when the dialog closes.
class CSetPasswordDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit CSetPasswordDialog(QWidget* parent = nullptr);
    ~CSetPasswordDialog() override;

    void setEncryptMode(bool encrypt) { m_encrypt = encrypt; }
    /// Only meaningful when encrypting.
    void setUseConfirmPassword(bool use) { m_useConfirmPassword = use; }
    void setShowPassword(bool show) { m_showPassword = show; }
    void setShowAdvancedOptions(bool show) { m_showAdvancedOptions = show; }
    /// The seal and the salt are only offered when encrypting; with a seal the salt makes no difference.
    void setSeal(bool seal) { m_seal = seal; }
    void setUseSalt(bool use) { m_useSalt = use; }
    void setRewriteOutputFile(bool rewrite) { m_rewriteOutputFile = rewrite; }
    /// The file that the dialog is about, by name, and how many files there are beside it.
    void setSubject(const QString& fileName, int others);
    void setAlgorithmName(const QString& name) { m_algorithmName = name; }

    /// UTF-8; empty unless accepted without a switch.
    const tessaly::SecretText& password() const { return m_password; }
    bool seal() const { return m_seal; }
    bool useSalt() const { return m_useSalt; }
    bool rewriteOutputFile() const { return m_rewriteOutputFile; }
    bool switchToAdvanced() const { return m_switchToAdvanced; }

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private slots:
    void onUiPasswordChanged(const QString& text);
    void onUiConfirmPasswordChanged(const QString& text);
    void onUiShowPasswordToggled(bool show);
    void onUiCapsLockChanged(bool on);
    void onUiGenerate();
    void onUiSwitchToAdvancedMode(const QString& link);
    void onUiOk();
    void onUiCancel();

private:
    void connectWidgets();
    void addEye();
    void prepare();
    bool confirms() const { return m_encrypt && m_useConfirmPassword; }
    bool checkPasswords();
    tessaly::SecretText secretPassword() const;
    void showStrength(const QString& password);
    void storeOptions();
    void clearFields();

    std::unique_ptr<Ui::CSetPasswordDialog> m_ui;
    QAction* m_eye = nullptr; ///< owned by the password field
    bool m_encrypt = true;
    bool m_useConfirmPassword = true;
    bool m_showPassword = false;
    bool m_showAdvancedOptions = true;
    bool m_seal = false;
    bool m_useSalt = false;
    bool m_rewriteOutputFile = false;
    bool m_switchToAdvanced = false;
    QString m_algorithmName;
    tessaly::SecretText m_password;
};
