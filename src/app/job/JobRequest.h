#pragma once

#include "app/job/IJobRequestHost.h"
#include "app/job/Message.h"
#include "app/job/SEncryptData.h"
#include "crypto/catalogue/IAlgInfo.h"

#include <QCoreApplication>
#include <QString>

#include <cstdint>
#include <filesystem>
#include <optional>

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
    /// In bytes, once the request has been made.
    std::int64_t inputSize() const { return m_facts.inputSize; }

private:
    struct Refusal
    {
        Area area;
        std::function<QString()> text;
    };
    using Verdict = std::optional<Refusal>;
    using Step = Verdict (JobRequest::*)();
    static const Step Steps[];

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
    Verdict secretIsEntered();
    Verdict ivFits();
    Verdict keyFits();
    Verdict engineIsReady();
    Verdict filesAreAsBefore();
    Verdict outputMayBeWritten();

    Refusal refusal(Area area, const char* operationText) const;
    static Refusal passwordNotDefined();

    const OperationTexts& m_texts;
    IJobRequestHost& m_host;
    IMessageAreas& m_areas;
    SEncryptData m_data;
    RequestFacts m_facts;
    PasswordEntry m_question;
    tessaly::crypto::AlgRecord m_sizes;
};

} // namespace thisapp
