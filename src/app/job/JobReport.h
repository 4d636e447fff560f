#pragma once

namespace thisapp {

class IMessageAreas;
struct InputRemoval;
struct SEncryptData;

/// Logs how a job ended and tells the user.
void reportOutcome(const SEncryptData& data, IMessageAreas& areas);

/// Tells the user what became of the input file after its encryption.
void reportInputRemoval(const InputRemoval& removal, IMessageAreas& areas);

} // namespace thisapp
