#pragma once

#include "app/job/Operation.h"
#include "app/job/RequestFacts.h"
#include "app/job/SEncryptData.h"
#include "common/settings/AlgSelection.h"
#include "lib/secret/Secret.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <filesystem>
#include <optional>

namespace thisapp {

/// The password dialog's question and answer.
struct PasswordEntry
{
    Operation operation = Operation::Encrypt;
    AlgSelection selection;
    QStringList names; ///< of the files it is for
    bool seal = false;
    bool useSalt = false;
    bool rewriteOutput = false;
    bool showAdvancedOptions = true;
    bool showPassword = false;
    bool useConfirmPassword = true;
    tessaly::SecretText password;
    bool switchToAdvanced = false;
};

/// The key dialog's question and answer; lengths in bytes.
struct KeyEntry
{
    Operation operation = Operation::Encrypt;
    AlgSelection selection;
    QStringList names; ///< of the files it is for
    std::uint32_t keyLength = 0;
    std::uint32_t ivLength = 0;
    bool seal = false;
    bool useSalt = false;
    bool rewriteOutput = false;
    tessaly::SecretBytes key;
    tessaly::SecretBytes iv;
    /// The fields as typed, whole or not: the dialog shows them again after a visit to the other one.
    tessaly::SecretText typedKey;
    tessaly::SecretText typedIv;
    bool switchToNormal = false;
};

/// What becomes of files that are to be encrypted, and seem to be so already.
enum class OnEncrypted { Cancel, LeaveOut, Encrypt };

/// The window as a request sees it: its fields, its dialogs and its job.
class IJobRequestHost
{
public:
    virtual ~IJobRequestHost() = default;

    virtual bool isJobRunning() const = 0;
    virtual AlgSelection selection() const = 0;

    virtual QString inputText() const = 0;
    virtual QString outputText() const = 0;
    virtual void setInputText(const QString& text) = 0;
    virtual void setOutputText(const QString& text) = 0;

    /// Both give nothing when the file system doesn't answer. The path that a field's text means; a fresh
    /// look at a job's files.
    virtual std::optional<std::filesystem::path> resolve(const QString& text) = 0;
    virtual std::optional<RequestFacts> look(const std::filesystem::path& input,
                                             const std::filesystem::path& output) = 0;

    /// Both give an empty text when the user cancels.
    virtual QString chooseInput(const QString& title) = 0;
    virtual QString chooseOutput(const QString& title) = 0;
    /// That many of the files, all of them when there is but one. A single one is never left out.
    virtual OnEncrypted askAboutEncrypted(int encrypted, int all) = 0;
    /// Both are false when the user cancels; a switch to the other dialog counts as an answer.
    virtual bool enterPassword(PasswordEntry& entry) = 0;
    virtual bool enterKeyAndIv(KeyEntry& entry) = 0;

    /// Makes the encryptor or decryptor of the next job; false when there is none.
    virtual bool prepareEngine(Operation operation, const AlgSelection& selection) = 0;
};

} // namespace thisapp
