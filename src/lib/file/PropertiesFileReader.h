#pragma once

#include "lib/file/IPropertiesFileReader.h"
#include "lib/file/TextFileReader.h"

#include <string>

namespace tessaly::file::internal {

/// The properties syntax:
/// - `key=value`, `key:value` or `key value`; blanks around the separator do not count, trailing ones do.
/// - A line that begins with "#" or "!" is a comment, also between continued lines; so is an empty line.
/// - A line that ends in a single backslash (not alone on its line) goes on with the next line.
/// - `\n` is a line feed, `\r` a carriage return, a backslash before any other character that character.
///   There are no \u escapes: the file is UTF-8. A backslash at the very end stands for itself.
class PropertiesFileReader final : public TextFileReader, public IPropertiesFileReader
{
public:
    using TextFileReader::TextFileReader;

    ResultCode read(const std::wstring& path, const PairSink& sink, const KeyFilter& filter,
                    const IVariablesSetter* variables) override;
    ResultCode read(const std::wstring& path, const PairSink& sink, const KeyFilter& filter) override;
    ResultCode read(const std::wstring& path, const PairSink& sink) override;

private:
    ResultCode readLogicalLine(std::string& line, bool& hasLine);
};

} // namespace tessaly::file::internal
