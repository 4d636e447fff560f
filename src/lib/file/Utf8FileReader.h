#pragma once

#include "lib/err/ResultCode.h"
#include "lib/file/IStreamUtf8File.h"

#include <functional>
#include <string>

namespace tessaly::file {

/// Reads a UTF-8 file at once, whole or by lines, without its byte-order mark. Whether the bytes are
/// valid UTF-8 is for the user of the text to see.
class Utf8FileReader final
{
public:
    explicit Utf8FileReader(io::SFileOptions options = {}) : m_options(options) {}

    /// text is empty after a failure.
    ResultCode read(const std::wstring& path, std::string& text) const;
    /// Hands over every line without its line end, "\n" or "\r\n".
    ResultCode readLines(const std::wstring& path, const std::function<void(const std::string&)>& sink) const;

private:
    io::SFileOptions m_options;
};

} // namespace tessaly::file
