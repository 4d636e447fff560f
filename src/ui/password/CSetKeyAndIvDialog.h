#pragma once

#include "lib/secret/Secret.h"
#include "ui/disk/CDiskWork.h"

#include <QDialog>
#include <memory>

namespace Ui {
class CSetKeyAndIvDialog;
}

/// Asks for the key and IV of one operation, in hexadecimal. Set it up, run exec() and, when
/// accepted, read the results; with switchToNormal() the user asked for the password dialog instead.
/// What is typed is cleared when the dialog closes.
class CSetKeyAndIvDialog final : public QDialog
{
    Q_OBJECT

public:
    /// The fields' texts as typed, whole or not.
    struct STyped
    {
        tessaly::SecretText iv;
        tessaly::SecretText key;
    };

    explicit CSetKeyAndIvDialog(QWidget* parent = nullptr);
    ~CSetKeyAndIvDialog() override;

    void setEncryptMode(bool encrypt) { m_encrypt = encrypt; }
    /// In bytes.
    void setExpectedLengths(std::uint32_t keyLength, std::uint32_t ivLength);
    /// The seal and the salt are only offered when encrypting; with a seal the salt makes no difference.
    void setSeal(bool seal) { m_seal = seal; }
    void setUseSalt(bool use) { m_useSalt = use; }
    void setRewriteOutputFile(bool rewrite) { m_rewriteOutputFile = rewrite; }
    /// The file that the dialog is about, by name, and how many files there are beside it.
    void setSubject(const QString& fileName, int others);
    void setAlgorithmName(const QString& name) { m_algorithmName = name; }
    /// What the fields hold when the dialog opens: an earlier dialog's typed().
    void setTyped(STyped typed) { m_typed = std::move(typed); }

    /// Empty unless accepted; after a switch, what was a whole number of hexadecimal bytes.
    const tessaly::SecretBytes& key() const { return m_key; }
    const tessaly::SecretBytes& iv() const { return m_iv; }
    /// What the user had typed at OK or at the switch, for the next dialog of the same operation.
    const STyped& typed() const { return m_typed; }
    bool seal() const { return m_seal; }
    bool useSalt() const { return m_useSalt; }
    bool rewriteOutputFile() const { return m_rewriteOutputFile; }
    bool switchToNormal() const { return m_switchToNormal; }

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private slots:
    void onUiKeyChanged();
    void onUiIvChanged();
    void onUiGenerate();
    void onUiCopy();
    void onUiSave();
    void onUiLoad();
    void onUiSwitchToNormalMode(const QString& link);
    void onUiOk();
    void onUiCancel();

private:
    void connectWidgets();
    void prepare();
    void showTexts();
    bool mayReplaceFields();
    void showFields(const tessaly::SecretBytes& key, const tessaly::SecretBytes& iv);
    void fillFields();
    bool check();
    void takeResults();
    tessaly::SecretText textToKeep() const;
    void clearFields();

    std::unique_ptr<Ui::CSetKeyAndIvDialog> m_ui;
    CDiskWork m_disk;
    bool m_encrypt = true;
    std::uint32_t m_keyLength = 0;
    std::uint32_t m_ivLength = 0;
    bool m_seal = false;
    bool m_useSalt = false;
    bool m_rewriteOutputFile = false;
    bool m_switchToNormal = false;
    /// The fields hold what Generate put there, and nobody keeps it.
    bool m_mayRegenerate = false;
    QString m_algorithmName;
    STyped m_typed;
    tessaly::SecretBytes m_key;
    tessaly::SecretBytes m_iv;
};
