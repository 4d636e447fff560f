#pragma once

#include "app/job/FileRefusal.h"
#include "app/job/IJobRequestHost.h"
#include "app/job/Message.h"
#include "app/job/SEncryptData.h"
#include "crypto/catalogue/IAlgInfo.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>

namespace thisapp {

/// What the user's Encrypt and Decrypt commands go through before a job may start. GUI thread.
class JobRequest
{
    Q_DECLARE_TR_FUNCTIONS(JobRequest)

public:
    JobRequest(Operation operation, IJobRequestHost& host, IMessageAreas& areas);

    /// Makes all the checks and asks all the questions in their order. The first check that fails shows
    /// its message, and nothing is given; nothing on the disk is changed in either case.
    std::optional<SEncryptData> run();
    /// The same for the files of a list, of which the names are given: all but what concerns one file
    /// and its output, which each of them is asked about in its turn.
    std::optional<SEncryptData> runForList(const QStringList& names);
    /// Once more with the secret of an earlier request, for another algorithm.
    std::optional<SEncryptData> runAgain(SEncryptData request);
    /// The answer about files that seem to be encrypted already, where there are some.
    OnEncrypted onEncrypted() const { return m_onEncrypted; }
    /// In bytes, once the request has been made.
    std::int64_t inputSize() const { return m_facts.inputSize; }

private:
    struct Refusal
    {
        Area area;
        RefusalText text;
    };
    using Verdict = std::optional<Refusal>;
    using Step = Verdict (JobRequest::*)();
    static const Step Steps[];
    static const Step ListSteps[];
    static const Step AgainSteps[];

    std::optional<SEncryptData> run(std::span<const Step> steps);

    static Refusal noAnswer(Area area);
    /// Settles which file a field's text means, for the area that a missing answer is told in.
    Verdict settle(Area area, const QString& text, std::filesystem::path& file);
    /// Asks the disk anew of the settled files.
    Verdict look(Area area);
    Verdict noJobRuns();
    Verdict libraryIsChosen();
    Verdict algorithmIsChosen();
    Verdict inputIsDefined();
    Verdict inputIsFound();
    Verdict inputCanBeRead(Area area) const;
    Verdict outputIsDefined();
    Verdict outputDiffersFromInput();
    Verdict outputCanBeMade() const;
    Verdict sizesAreKnown();
    Verdict settingsAreRead();
    Verdict encryptionIsMeant();
    Verdict secretIsEntered();
    Verdict ivFits();
    Verdict keyFits();
    Verdict engineIsReady();
    Verdict filesAreAsBefore();
    Verdict outputMayBeWritten();

    static Verdict verdict(Area area, RefusalText text);
    Refusal refusal(Area area, const char* operationText) const;
    static Refusal passwordNotDefined();

    const OperationTexts& m_texts;
    IJobRequestHost& m_host;
    IMessageAreas& m_areas;
    SEncryptData m_data;
    QStringList m_names;
    OnEncrypted m_onEncrypted = OnEncrypted::Encrypt;
    RequestFacts m_facts;
    PasswordEntry m_question;
    tessaly::crypto::AlgRecord m_sizes;
};

} // namespace thisapp
