#include "app/job/JobReport.h"

#include "app/job/InputRemoval.h"
#include "app/job/Message.h"
#include "app/job/SEncryptData.h"
#include "common/errors/ErrorText.h"
#include "common/errors/JobStepText.h"
#include "common/path/PathText.h"
#include "crypto/catalogue/Catalogue.h"
#include "lib/err/ErrorCodes.h"
#include "lib/logger/Log.h"
#include "ui/style/TextDirection.h"

#include <QCoreApplication>
#include <QStringList>

namespace thisapp {

using namespace tessaly;

namespace {

constexpr char LogSource[] = "mainwindow";

struct ReportText
{
    Q_DECLARE_TR_FUNCTIONS(JobReport)
};

void reportRemovedOutput(const SEncryptData& data, IMessageAreas& areas)
{
    if (data.outcome.outputDeleted)
        areas.showMessage(Area::Output,
                          {MessageKind::Warning, lostOutputText, pathText(data.request.output)});
}

/// The files of a job in a line.
std::function<QString()> filesOf(const SEncryptData& data)
{
    return [input = pathText(data.request.input.filename()), output = pathText(data.request.output)] {
        return input + nameArrow() + output;
    };
}

/// A job that is done, and that the encrypted file is a sealed one.
QString successText(const OperationTexts& texts, Operation operation, bool sealed)
{
    if (!sealed)
        return translated(texts.succeeded);
    //: Follows "File was encrypted successfully. " or "File was decrypted successfully. "
    const QString seal = operation == Operation::Encrypt ? ReportText::tr("It is sealed.")
                                                         : ReportText::tr("It was sealed and is unchanged.");
    return translated(texts.succeeded) + QStringLiteral(". ") + seal;
}

/// What a failed job was doing to which file.
std::function<QString()> failedStep(const SEncryptData& data)
{
    return [text = failedStepText(data.outcome), file = pathText(failedFile(data.outcome, data.request))] {
        return QCoreApplication::translate("JobStep", text).arg(leftToRight(file));
    };
}

QString advice(const ResultCode& failure, bool passwordMode)
{
    // The check value can't tell these causes apart, so name them all.
    if (failure == err::library(err::CheckValueDiffers))
        return passwordMode ? ReportText::tr("Check the password and the algorithm.")
                            : ReportText::tr("Check the key, the IV and the algorithm.");
    // The beginning of the file was as it should be.
    if (failure == err::library(err::SealBroken))
        return passwordMode
                   ? ReportText::tr("The password and the algorithm are right. Try another copy of the file.")
                   : ReportText::tr(
                         "The key, the IV and the algorithm are right. Try another copy of the file.");
    return {};
}

void adviseOnInput(const SEncryptData& data, IMessageAreas& areas)
{
    const ResultCode failure = data.outcome.result.first();
    const bool passwordMode = data.request.passwordMode;
    if (data.outcome.fittingAlgorithm)
        return; // that will be offered
    if (data.operation == Operation::Decrypt && !advice(failure, passwordMode).isEmpty())
        areas.showMessage(Area::Input, {MessageKind::Plain,
                                        [failure, passwordMode] { return advice(failure, passwordMode); },
                                        pathText(data.request.input)});
}

} // namespace

void reportFailedStart(const SEncryptData& data, ResultCode reason, IMessageAreas& areas)
{
    areas.showMessage(Area::Result, {MessageKind::Error,
                                     [&texts = operationTexts(data.operation), reason] {
                                         return translated(texts.startFailed) + ' ' + errorText(reason);
                                     },
                                     {},
                                     filesOf(data)});
}

void reportOutcome(const SEncryptData& data, IMessageAreas& areas, std::function<void()> openFolder)
{
    const OperationTexts& texts = operationTexts(data.operation);
    const crypto::FileJobOutcome& outcome = data.outcome;
    if (outcome.cancelled) {
        reportRemovedOutput(data, areas);
        logger::log(logger::Information, LogSource) << texts.cancelled;
        areas.showMessage(
            Area::Result,
            {MessageKind::Error, [&texts] { return translated(texts.cancelled); }, {}, filesOf(data)});
    } else if (outcome.result.ok()) {
        areas.showMessage(Area::Result, {MessageKind::Success,
                                         [&texts, operation = data.operation, sealed = outcome.sealed] {
                                             return successText(texts, operation, sealed);
                                         },
                                         {},
                                         filesOf(data),
                                         openFolderText,
                                         std::move(openFolder)});
    } else {
        logFailure(data);
        reportRemovedOutput(data, areas);
        areas.showMessage(Area::Result, {MessageKind::Error,
                                         [&texts, result = outcome.result] {
                                             return translated(texts.failed) + ' ' + errorText(result);
                                         },
                                         {},
                                         failedStep(data)});
        adviseOnInput(data, areas);
    }
}

QString openFolderText()
{
    return ReportText::tr("Open folder");
}

bool hasLostFormerOutput(const SEncryptData& data)
{
    return data.outcome.outputDeleted && data.request.existing == crypto::ExistingOutput::RemoveFirst;
}

QString lostOutputText()
{
    return ReportText::tr("Output file has been deleted.");
}

QString algorithmName(std::uint32_t id)
{
    return QString::fromLatin1(crypto::displayName(id).data());
}

QString fittingAlgorithmText(std::uint32_t id)
{
    return ReportText::tr("This file was encrypted with %1.").arg(algorithmName(id));
}

QString failureText(const SEncryptData& data)
{
    const QString hint = data.outcome.fittingAlgorithm ? fittingAlgorithmText(*data.outcome.fittingAlgorithm)
                         : data.operation == Operation::Decrypt
                             ? advice(data.outcome.result.first(), data.request.passwordMode)
                             : QString();
    QStringList sentences{errorText(data.outcome.result) + QLatin1Char('.'), hint,
                          hasLostFormerOutput(data) ? lostOutputText() : QString()};
    sentences.removeAll(QString());
    return sentences.join(QLatin1Char(' '));
}

void logFailure(const SEncryptData& data)
{
    logger::log(logger::Error, LogSource) << "Failed to encrypt/decrypt. Error: " << data.errorText;
}

QString removalText(const InputRemoval& removal)
{
    if (removal.kept)
        return keptText(*removal.kept);
    const QString failure = removal.error.ok() ? QString() : ' ' + errorText(removal.error);
    if (!removal.removed)
        return ReportText::tr("The input file could not be deleted.") + failure;
    return ReportText::tr("Input file has been deleted after the successfully encryption "
                          "according to your options") +
           (failure.isEmpty() ? failure : '.' + failure);
}

void reportInputRemoval(const InputRemoval& removal, const SEncryptData& data, IMessageAreas& areas)
{
    areas.showMessage(Area::Input,
                      {removal.removed && removal.error.ok() ? MessageKind::Success : MessageKind::Warning,
                       [removal] { return removalText(removal); }, pathText(data.request.input)});
}

} // namespace thisapp
