#pragma once

#include "lib/err/ResultCode.h"

namespace thisapp {

class IMessageAreas;
struct InputRemoval;
struct SEncryptData;

/// Tells the user that a job over these files could not be started.
void reportFailedStart(const SEncryptData& data, tessaly::ResultCode reason, IMessageAreas& areas);

/// Logs how a job ended and tells the user, with the names of its own files: the fields may hold others
/// by now.
void reportOutcome(const SEncryptData& data, IMessageAreas& areas);

/// Tells the user what became of that job's input file after its encryption.
void reportInputRemoval(const InputRemoval& removal, const SEncryptData& data, IMessageAreas& areas);

} // namespace thisapp
