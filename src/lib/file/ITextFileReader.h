#pragma once

#include "lib/err/ResultCode.h"

#include <string>

namespace tessaly::file {

/// Reads a text file line by line.
class ITextFileReader
{
public:
    virtual ~ITextFileReader() = default;

    virtual ResultCode open(const std::wstring& path) = 0;
    /// The next line without its "\n"; hasLine is false at the end of the file and on failure.
    virtual ResultCode readLine(std::string& line, bool& hasLine) = 0;
    virtual void close() = 0;
};

} // namespace tessaly::file
