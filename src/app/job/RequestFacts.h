#pragma once

#include "io/PathCheck.h"

#include <QString>

#include <cstdint>
#include <filesystem>

namespace thisapp {

/// What the file system says of a job's input and output.
struct RequestFacts
{
    tessaly::io::InputCheck inputCheck = tessaly::io::InputCheck::NotFound;
    tessaly::io::OutputCheck outputCheck = tessaly::io::OutputCheck::Free;
    std::int64_t inputSize = 0; ///< in bytes
};

/// The path that the user means: the text as it stands where that names something, else without the
/// blanks around it. Asked later, the same text may mean another file. Any thread; as slow as the file
/// system.
QString meantPath(const QString& text);

/// An output without a name counts as free. Any thread; as slow as the file system.
RequestFacts lookAtRequest(const std::filesystem::path& input, const std::filesystem::path& output);

} // namespace thisapp
