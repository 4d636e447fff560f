#include "app/job/JobRequest.h"

#include "common/naming/OutputNaming.h"
#include "common/path/PathText.h"
#include "common/settings/CAppSettings.h"
#include "common/settings/SettingsKeys.h"
#include "crypto/catalogue/AlgInfo.h"

#include <QDir>
#include <QLocale>

#include <algorithm>
#include <utility>

namespace thisapp {

using namespace tessaly;

const JobRequest::Step JobRequest::Steps[] = {
    &JobRequest::noJobRuns,
    &JobRequest::libraryIsChosen,
    &JobRequest::algorithmIsChosen,
    &JobRequest::inputIsDefined,
    &JobRequest::inputIsFound,
    &JobRequest::outputIsDefined,
    &JobRequest::outputDiffersFromInput,
    &JobRequest::sizesAreKnown,
    &JobRequest::settingsAreRead,
    &JobRequest::encryptionIsMeant,
    &JobRequest::secretIsEntered,
    &JobRequest::ivFits,
    &JobRequest::keyFits,
    &JobRequest::engineIsReady,
    &JobRequest::filesAreAsBefore,
    &JobRequest::outputMayBeWritten,
};

const JobRequest::Step JobRequest::ListSteps[] = {
    &JobRequest::noJobRuns,       &JobRequest::libraryIsChosen, &JobRequest::algorithmIsChosen,
    &JobRequest::sizesAreKnown,   &JobRequest::settingsAreRead, &JobRequest::encryptionIsMeant,
    &JobRequest::secretIsEntered, &JobRequest::ivFits,          &JobRequest::keyFits,
    &JobRequest::engineIsReady,
};

const JobRequest::Step JobRequest::AgainSteps[] = {
    &JobRequest::noJobRuns,
    &JobRequest::sizesAreKnown,
    &JobRequest::ivFits,
    &JobRequest::keyFits,
    &JobRequest::engineIsReady,
    &JobRequest::filesAreAsBefore,
    &JobRequest::outputMayBeWritten,
};

JobRequest::JobRequest(Operation operation, IJobRequestHost& host, IMessageAreas& areas)
    : m_texts(operationTexts(operation)), m_host(host), m_areas(areas)
{
    m_data.operation = operation;
}

std::optional<SEncryptData> JobRequest::run()
{
    return run(Steps);
}

std::optional<SEncryptData> JobRequest::runForList(const QStringList& names)
{
    m_names = names;
    return run(ListSteps);
}

std::optional<SEncryptData> JobRequest::runAgain(SEncryptData request)
{
    m_data = std::move(request);
    m_data.request.existing = crypto::ExistingOutput::Keep;
    return run(AgainSteps);
}

std::optional<SEncryptData> JobRequest::run(std::span<const Step> steps)
{
    for (const Step step : steps) {
        if (Verdict refused = (this->*step)()) {
            m_areas.showMessage(refused->area, {MessageKind::Error, std::move(refused->text)});
            return std::nullopt;
        }
    }
    return std::move(m_data);
}

JobRequest::Verdict JobRequest::noJobRuns()
{
    if (m_host.isJobRunning())
        return Refusal{Area::Progress, [] { return tr("Encryption/Decryption already running."); }};
    return {};
}

JobRequest::Verdict JobRequest::libraryIsChosen()
{
    m_data.selection = m_host.selection();
    if (m_data.selection.library == 0)
        return refusal(Area::Progress, m_texts.algorithmNotDefined);
    return {};
}

JobRequest::Verdict JobRequest::algorithmIsChosen()
{
    if (m_data.selection.algorithm == 0)
        return refusal(Area::Progress, m_texts.algorithmNotDefined);
    return {};
}

JobRequest::Verdict JobRequest::inputIsDefined()
{
    std::filesystem::path& input = m_data.request.input;
    if (Verdict refused = settle(Area::Input, m_host.inputText(), input))
        return refused;
    if (input.empty()) {
        const QString chosen = m_host.chooseInput(translated(m_texts.selectFile));
        if (!chosen.isEmpty())
            m_host.setInputText(QDir::toNativeSeparators(chosen));
        if (Verdict refused = settle(Area::Input, m_host.inputText(), input))
            return refused;
    }
    if (input.empty())
        return refusal(Area::Input, m_texts.fileNotDefined);
    return {};
}

JobRequest::Verdict JobRequest::settle(Area area, const QString& text, std::filesystem::path& file)
{
    const std::optional<std::filesystem::path> meant = m_host.resolve(text);
    if (!meant)
        return noAnswer(area);
    file = *meant;
    return {};
}

JobRequest::Verdict JobRequest::look(Area area)
{
    const std::optional<RequestFacts> facts = m_host.look(m_data.request.input, m_data.request.output);
    if (!facts)
        return noAnswer(area);
    m_facts = *facts;
    return {};
}

JobRequest::Verdict JobRequest::inputIsFound()
{
    if (Verdict refused = look(Area::Input))
        return refused;
    m_names = QStringList(pathText(m_data.request.input.filename()));
    return inputCanBeRead(Area::Input);
}

JobRequest::Verdict JobRequest::inputCanBeRead(Area area) const
{
    return verdict(area, inputRefusal(m_data.operation, m_facts));
}

JobRequest::Verdict JobRequest::outputIsDefined()
{
    std::filesystem::path& output = m_data.request.output;
    if (Verdict refused = settle(Area::Output, m_host.outputText(), output))
        return refused;
    if (output.empty()) {
        const QString chosen = m_host.chooseOutput(tr("Define output file"));
        if (!chosen.isEmpty())
            m_host.setOutputText(QDir::toNativeSeparators(chosen));
        if (Verdict refused = settle(Area::Output, m_host.outputText(), output))
            return refused;
    }
    if (output.empty())
        return Refusal{Area::Output, [] { return tr("Output file is not defined."); }};
    return {};
}

JobRequest::Verdict JobRequest::outputDiffersFromInput()
{
    if (Verdict refused = look(Area::Result))
        return refused;
    return outputCanBeMade();
}

JobRequest::Verdict JobRequest::outputCanBeMade() const
{
    return verdict(Area::Result, outputRefusal(m_facts, m_data.request.output));
}

JobRequest::Verdict JobRequest::sizesAreKnown()
{
    m_sizes = crypto::AlgInfo().record(m_data.selection.algorithm);
    return {};
}

JobRequest::Verdict JobRequest::settingsAreRead()
{
    const CAppSettings settings;
    m_question.operation = m_data.operation;
    m_question.selection = m_data.selection;
    m_question.rewriteOutput = readSetting(settings, keys::RewriteOutputFile);
    m_question.showAdvancedOptions = readSetting(settings, keys::ShowAdvancedPasswordOptions);
    m_question.showPassword = readSetting(settings, keys::ShowPassword);
    if (m_data.operation == Operation::Encrypt) {
        m_question.seal = readSetting(settings, keys::SealFiles);
        m_question.useSalt = readSetting(settings, keys::UseSalt);
        m_question.useConfirmPassword = readSetting(settings, keys::UseConfirmPassword);
    }
    return {};
}

/// A file that is encrypted twice must be decrypted twice, so nobody gets there by accident.
JobRequest::Verdict JobRequest::encryptionIsMeant()
{
    if (m_data.operation != Operation::Encrypt)
        return {};
    const NamingSettings naming = readNamingSettings(CAppSettings());
    const auto encrypted = std::ranges::count_if(m_names, [&naming](const QString& name) {
        return namingDirection(name, naming) == NamingDirection::Decryption;
    });
    if (encrypted == 0)
        return {};
    m_onEncrypted = m_host.askAboutEncrypted(static_cast<int>(encrypted), m_names.size());
    return m_onEncrypted == OnEncrypted::Cancel ? Verdict(Refusal{Area::Result, {}}) : Verdict();
}

JobRequest::Verdict JobRequest::secretIsEntered()
{
    KeyEntry keyEntry;
    keyEntry.names = m_question.names = m_names;
    keyEntry.operation = m_data.operation;
    keyEntry.selection = m_data.selection;
    keyEntry.keyLength = m_sizes.keyLength;
    keyEntry.ivLength = m_sizes.ivLength;
    for (;;) {
        m_question.switchToAdvanced = false;
        if (!m_host.enterPassword(m_question))
            return passwordNotDefined();
        m_data.request.seal = keyEntry.seal = m_question.seal;
        m_data.request.useSalt = keyEntry.useSalt = m_question.useSalt;
        m_data.rewriteOutput = keyEntry.rewriteOutput = m_question.rewriteOutput;
        if (!m_question.switchToAdvanced) {
            m_data.request.passwordMode = true;
            m_data.request.password = std::exchange(m_question.password, {});
            if (m_data.request.password.empty())
                return passwordNotDefined();
            return {};
        }

        keyEntry.switchToNormal = false;
        if (!m_host.enterKeyAndIv(keyEntry))
            return passwordNotDefined();
        m_data.request.seal = m_question.seal = keyEntry.seal;
        m_data.request.useSalt = m_question.useSalt = keyEntry.useSalt;
        m_data.rewriteOutput = m_question.rewriteOutput = keyEntry.rewriteOutput;
        if (!keyEntry.switchToNormal) {
            m_data.request.passwordMode = false;
            m_data.request.key = std::move(keyEntry.key);
            m_data.request.iv = std::move(keyEntry.iv);
            return {};
        }
    }
}

JobRequest::Verdict JobRequest::ivFits()
{
    const auto ivSize = m_data.request.iv.size();
    if (m_data.request.passwordMode || ivSize == m_sizes.ivLength)
        return {};
    return Refusal{Area::Result, [ivSize] {
                       return tr("Invalid IV size. Entered %1 bytes").arg(QLocale().toString(ivSize));
                   }};
}

JobRequest::Verdict JobRequest::keyFits()
{
    if (m_data.request.passwordMode || m_data.request.key.size() == m_sizes.keyLength)
        return {};
    // Deliberately the size of the IV in this message, too.
    const auto ivSize = m_data.request.iv.size();
    return Refusal{Area::Result, [ivSize] {
                       return tr("Invalid key size. Entered %1 bytes").arg(QLocale().toString(ivSize));
                   }};
}

JobRequest::Verdict JobRequest::engineIsReady()
{
    if (!m_host.prepareEngine(m_data.operation, m_data.selection))
        return refusal(Area::Result, m_texts.engineFailed);
    return {};
}

/// Looks last of all, at the same files: however long the questions took, the answer is of this moment.
JobRequest::Verdict JobRequest::filesAreAsBefore()
{
    if (Verdict refused = look(Area::Result))
        return refused;
    if (Verdict refused = inputCanBeRead(Area::Result))
        return refused;
    return outputCanBeMade();
}

/// An existing output is only marked here; the worker removes it, as that may take its time.
JobRequest::Verdict JobRequest::outputMayBeWritten()
{
    if (Verdict refused = verdict(Area::Result, existingRefusal(m_facts, m_data.rewriteOutput)))
        return refused;
    if (m_facts.outputCheck == io::OutputCheck::Exists)
        m_data.request.existing = crypto::ExistingOutput::RemoveFirst;
    return {};
}

JobRequest::Verdict JobRequest::verdict(Area area, RefusalText text)
{
    return text ? Verdict(Refusal{area, std::move(text)}) : std::nullopt;
}

JobRequest::Refusal JobRequest::refusal(Area area, const char* operationText) const
{
    return {area, [operationText] { return translated(operationText); }};
}

JobRequest::Refusal JobRequest::noAnswer(Area area)
{
    return {area, [] { return tr("The file system does not answer."); }};
}

JobRequest::Refusal JobRequest::passwordNotDefined()
{
    return {Area::Result, [] { return tr("Password not defined"); }};
}

} // namespace thisapp
