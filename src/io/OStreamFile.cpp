#include "io/OStreamFile.h"

#include "lib/err/ErrorCodes.h"
#include "lib/platform/Path.h"

#include <mutex>
#include <utility>

namespace tessaly::io {

namespace {

/// Written data is handed to the disk in pieces of this size while the work goes on, so that
/// finish has little left to wait for.
constexpr std::int64_t WritebackPiece = 8 << 20;

} // namespace

template <class Char>
ResultCode OStreamFile<Char>::open(const std::basic_string<Char>& path)
{
    if (path.empty())
        return err::library(err::NullArgument);
    if (isOpen())
        return err::library(err::AlreadyOpen);
    platform::File file;
    if (const ResultCode result = file.openForWriting(platform::pathFromWide(path)); !result.ok())
        return result;
    return open(std::move(file));
}

template <class Char>
ResultCode OStreamFile<Char>::open(platform::File file)
{
    std::lock_guard guard(m_lock);
    if (m_file.isOpen())
        return err::library(err::AlreadyOpen);
    m_file = std::move(file);
    m_lastError = {};
    m_written = m_handedToDisk = 0;
    return {};
}

template <class Char>
bool OStreamFile<Char>::isOpen() const
{
    std::lock_guard guard(m_lock);
    return m_file.isOpen();
}

template <class Char>
std::int64_t OStreamFile<Char>::write(const void* buffer, std::int64_t count)
{
    {
        std::lock_guard guard(m_lock);
        m_lastError = {};
        if (count < 1)
            return 0;
        if (buffer == nullptr || !m_file.isOpen()) {
            m_lastError = err::library(buffer == nullptr ? err::NullArgument : err::StreamClosed);
            return 0;
        }
    }
    std::int64_t written = 0;
    const ResultCode result =
        writeAll(static_cast<const char*>(buffer), static_cast<std::size_t>(count), written);
    if (!result.ok()) {
        std::lock_guard guard(m_lock);
        m_lastError = result;
    }
    keepDiskBusy(written);
    return written;
}

template <class Char>
ResultCode OStreamFile<Char>::writeAll(const char* bytes, std::size_t count, std::int64_t& written)
{
    while (count > 0) {
        std::size_t put = 0;
        if (const ResultCode result = m_file.seekToEnd(); !result.ok())
            return result;
        if (const ResultCode result = m_file.write(bytes, count, put); !result.ok())
            return result;
        bytes += put;
        count -= put;
        written += static_cast<std::int64_t>(put);
    }
    return {};
}

template <class Char>
void OStreamFile<Char>::keepDiskBusy(std::int64_t justWritten)
{
    m_written += justWritten;
    if (m_written - m_handedToDisk < WritebackPiece)
        return;
    m_file.startWriteback(m_handedToDisk, m_written - m_handedToDisk);
    m_handedToDisk = m_written;
}

template <class Char>
ResultCode OStreamFile<Char>::lastError() const
{
    std::lock_guard guard(m_lock);
    return m_lastError;
}

template <class Char>
ResultCode OStreamFile<Char>::flush()
{
    return isOpen() ? m_file.sync() : err::library(err::StreamClosed);
}

template <class Char>
ResultCode OStreamFile<Char>::close()
{
    platform::File file;
    {
        std::lock_guard guard(m_lock);
        std::swap(file, m_file);
    }
    return file.close();
}

template class OStreamFile<wchar_t>;

} // namespace tessaly::io
