#include "lib/file/TextFileReader.h"

namespace tessaly::file::internal {

ResultCode TextFileReader::open(const std::wstring& path)
{
    m_block.clear();
    m_position = 0;
    return m_stream.open(path);
}

ResultCode TextFileReader::readLine(std::string& line, bool& hasLine)
{
    line.clear();
    hasLine = false;
    for (;;) {
        if (m_position == m_block.size()) {
            const ResultCode result = readBlock();
            if (!result.ok() || m_block.empty()) {
                hasLine = hasLine && result.ok();
                return result;
            }
        }
        hasLine = true;
        const std::size_t end = m_block.find('\n', m_position);
        line.append(m_block, m_position, end - m_position);
        if (end != std::string::npos) {
            m_position = end + 1;
            return {};
        }
        m_position = m_block.size();
    }
}

ResultCode TextFileReader::readBlock()
{
    constexpr std::size_t BlockSize = 64 * 1024;
    m_block.resize(BlockSize);
    m_position = 0;
    std::size_t count = 0;
    const ResultCode result = m_stream.read(m_block.data(), m_block.size(), count);
    m_block.resize(count);
    return result;
}

} // namespace tessaly::file::internal
