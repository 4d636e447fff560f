#include "lib/file/IStreamUtf8File.h"

#include "lib/err/ErrorCodes.h"
#include "lib/platform/Path.h"

#include <string_view>

namespace tessaly::io {

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

} // namespace

ResultCode IStreamUtf8File::open(const std::wstring& path)
{
    close();
    if (path.empty())
        return err::library(err::NullArgument);
    m_left = options().sizeLimit;
    ResultCode result = m_file.openForReading(platform::pathFromWide(path));
    if (result.ok())
        result = checkFile();
    if (result.ok())
        result = readHead();
    if (!result.ok())
        close();
    return result;
}

ResultCode IStreamUtf8File::read(char* buffer, std::size_t size, std::size_t& count)
{
    count = 0;
    if (!isOpen())
        return err::library(err::StreamClosed);
    if (m_head.empty())
        return readCounted(buffer, size, count);
    count = m_head.copy(buffer, size);
    m_head.erase(0, count);
    return {};
}

void IStreamUtf8File::close()
{
    (void)m_file.close(); // nothing was written that could be lost
    m_head.clear();
}

ResultCode IStreamUtf8File::checkFile() const
{
    platform::FileStatus status;
    const ResultCode result = m_file.status(status);
    if (!result.ok())
        return result;
    if (status.kind == platform::FileKind::Other)
        return err::library(err::OpenFileFailed);
    const bool isTooLarge =
        status.kind == platform::FileKind::Regular && static_cast<std::uint64_t>(status.size) > m_left;
    return isTooLarge ? err::library(err::FileTooLarge) : ResultCode();
}

ResultCode IStreamUtf8File::readHead()
{
    char bytes[ByteOrderMark.size()];
    std::size_t count = 0;
    do {
        const ResultCode result = readCounted(bytes, sizeof bytes - m_head.size(), count);
        if (!result.ok())
            return result;
        m_head.append(bytes, count);
    } while (count > 0 && m_head.size() < sizeof bytes);
    if (m_head == ByteOrderMark)
        m_head.clear();
    return {};
}

ResultCode IStreamUtf8File::readCounted(char* buffer, std::size_t size, std::size_t& count)
{
    const ResultCode result = m_file.read(buffer, size, count);
    if (count > m_left) {
        count = 0;
        return err::library(err::FileTooLarge);
    }
    m_left -= count;
    return result;
}

} // namespace tessaly::io
