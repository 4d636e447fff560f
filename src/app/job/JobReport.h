#pragma once

#include "lib/err/ResultCode.h"

#include <QString>

#include <cstdint>
#include <functional>

namespace thisapp {

class IMessageAreas;
struct InputRemoval;
struct SEncryptData;

/// Tells the user that a job over these files could not be started.
void reportFailedStart(const SEncryptData& data, tessaly::ResultCode reason, IMessageAreas& areas);

/// Logs how a job ended and tells the user, with the names of its own files: the fields may hold others
/// by now. `openFolder` shows where a new output stands.
void reportOutcome(const SEncryptData& data, IMessageAreas& areas, std::function<void()> openFolder);

/// The link that does so.
QString openFolderText();

/// A job that was not completed has removed a former output.
bool hasLostFormerOutput(const SEncryptData& data);
QString lostOutputText();

/// As the user knows it.
QString algorithmName(std::uint32_t id);

/// That a file was encrypted with it.
QString fittingAlgorithmText(std::uint32_t id);

/// The error of a failed job, with advice where there is some and what became of a former output.
QString failureText(const SEncryptData& data);

/// Logs it.
void logFailure(const SEncryptData& data);

/// What became of an input file after its encryption, in a sentence.
QString removalText(const InputRemoval& removal);

/// Tells the user what became of that job's input file after its encryption.
void reportInputRemoval(const InputRemoval& removal, const SEncryptData& data, IMessageAreas& areas);

} // namespace thisapp
