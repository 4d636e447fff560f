#pragma once

#include "lib/err/ResultCode.h"

#include <QString>

#include <optional>

/// When the input file may be deleted after its encryption. It may be the only copy of what its owner
/// has, so the least doubt keeps it.
namespace thisapp {

struct SEncryptData;

enum class KeepReason {
    NotEncrypted,  ///< the job was a decryption, or didn't complete
    SymbolicLink,  ///< deleting it would leave the data where they are
    HardLinks,     ///< likewise
    Changed,       ///< it isn't what was read
    OutputDiffers, ///< what was written isn't there, or not in full
};

/// How a removal went.
struct InputRemoval
{
    std::optional<KeepReason> kept;
    /// The file could not be removed, or the disk did not take it in.
    tessaly::ResultCode error;
    bool removed = false;
};

/// Nothing when the input may be deleted. Only looks at both files.
std::optional<KeepReason> reasonToKeepInput(const SEncryptData& data);

/// Looks again, then deletes the input; returns when that has reached the disk.
InputRemoval removeInput(const SEncryptData& data);

/// Tells the user why the input is still there.
QString keptText(KeepReason reason);

} // namespace thisapp
