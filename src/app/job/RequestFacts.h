#pragma once

#include "io/PathCheck.h"

#include <QString>

#include <cstdint>
#include <filesystem>

namespace thisapp {

/// What the file system says of the texts that stand for a job's input and output.
struct RequestFacts
{
    std::filesystem::path input;
    std::filesystem::path output;
    tessaly::io::InputCheck inputCheck = tessaly::io::InputCheck::NotFound;
    tessaly::io::OutputCheck outputCheck = tessaly::io::OutputCheck::Free;
    std::int64_t inputSize = 0; ///< in bytes
};

/// The path that the user means: the text as it stands where that names something, else without the
/// blanks around it. Any thread; as slow as the file system.
QString meantPath(const QString& text);

/// Any thread; as slow as the file system.
RequestFacts lookAtRequest(const QString& inputText, const QString& outputText);

} // namespace thisapp
