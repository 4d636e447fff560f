#include "lib/file/Utf8FileReader.h"

#include "lib/file/TextFileReader.h"

namespace tessaly::file {

ResultCode Utf8FileReader::read(const std::wstring& path, std::string& text) const
{
    text.clear();
    io::IStreamUtf8File stream(m_options);
    ResultCode result = stream.open(path);

    char block[16 * 1024];
    std::size_t count = 1;
    while (result.ok() && count > 0) {
        result = stream.read(block, sizeof block, count);
        text.append(block, count);
    }
    if (!result.ok())
        text.clear();
    return result;
}

ResultCode Utf8FileReader::readLines(const std::wstring& path,
                                     const std::function<void(const std::string&)>& sink) const
{
    internal::TextFileReader reader(m_options);
    ResultCode result = reader.open(path);
    std::string line;
    bool hasLine = true;
    while (result.ok() && hasLine) {
        result = reader.readLine(line, hasLine);
        if (!hasLine)
            continue;
        if (line.ends_with('\r'))
            line.pop_back();
        sink(line);
    }
    return result;
}

} // namespace tessaly::file
