#include "common/errors/JobStepText.h"

#include "lib/err/ErrorCodes.h"

#include <QtGlobal>

namespace thisapp {

using namespace tessaly;

namespace {

const char* processingText(const crypto::CryptoResult& result)
{
    if (result.first() == err::library(err::ReadStreamFailed))
        return QT_TRANSLATE_NOOP("JobStep", "The input file %1 could not be read.");
    if (result.first() == err::library(err::WriteStreamFailed))
        return QT_TRANSLATE_NOOP("JobStep", "The output file %1 could not be written.");
    return QT_TRANSLATE_NOOP("JobStep", "The file %1 could not be processed.");
}

} // namespace

const char* failedStepText(const crypto::FileJobOutcome& outcome)
{
    switch (outcome.step) {
    case crypto::JobStep::OpenInput:
        return QT_TRANSLATE_NOOP("JobStep", "The input file %1 could not be opened.");
    case crypto::JobStep::RemoveFormerOutput:
        return QT_TRANSLATE_NOOP("JobStep", "The former output file %1 could not be removed.");
    case crypto::JobStep::CreateOutput:
        return QT_TRANSLATE_NOOP("JobStep", "The output file %1 could not be created.");
    case crypto::JobStep::Process:
        return processingText(outcome.result);
    case crypto::JobStep::StoreOutput:
        break;
    }
    return QT_TRANSLATE_NOOP("JobStep", "The output file %1 could not be stored.");
}

const std::filesystem::path& failedFile(const crypto::FileJobOutcome& outcome,
                                        const crypto::FileJobRequest& request)
{
    return outcome.failedAtOutput() ? request.output : request.input;
}

} // namespace thisapp
