#pragma once

#include "lib/file/IStreamUtf8File.h"
#include "lib/file/ITextFileReader.h"

#include <cstddef>
#include <string>

namespace tessaly::file::internal {

/// Lines end at "\n"; a carriage return before it belongs to the line. A last line without "\n" counts.
class TextFileReader : public ITextFileReader
{
public:
    explicit TextFileReader(io::SFileOptions options = {}) : m_stream(options) {}

    ResultCode open(const std::wstring& path) override;
    ResultCode readLine(std::string& line, bool& hasLine) override;
    void close() override { m_stream.close(); }

private:
    ResultCode readBlock();

    io::IStreamUtf8File m_stream;
    std::string m_block;
    std::size_t m_position = 0; ///< of the first byte of m_block not yet handed out
};

} // namespace tessaly::file::internal
