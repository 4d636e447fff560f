#include "io/OStreamFile.h"

#include "lib/err/ErrorCodes.h"

#include <mutex>
#include <utility>

namespace tessaly::io {

namespace {

/// Written data is handed to the disk in pieces of this size while the work goes on, so that
/// finish has little left to wait for.
constexpr std::int64_t WritebackPiece = 8 << 20;

} // namespace

template <class Char>
ResultCode OStreamFile<Char>::open(const std::basic_string<Char>& path, platform::Creation creation,
                                   platform::Access access)
{
    if (path.empty())
        return err::library(err::NullArgument);
    std::lock_guard guard(m_lock);
    if (m_file.isOpen())
        return err::library(err::AlreadyOpen);
    return m_file.openForWriting(path, creation, access);
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
platform::FileStatus OStreamFile<Char>::status() const
{
    std::lock_guard guard(m_lock);
    platform::FileStatus status;
    if (m_file.isOpen())
        (void)m_file.status(status);
    return status;
}

template <class Char>
ResultCode OStreamFile<Char>::finish()
{
    platform::File file;
    {
        std::lock_guard guard(m_lock);
        file = std::move(m_file);
    }
    if (!file.isOpen())
        return err::library(err::StreamClosed);
    const ResultCode synced = file.sync();
    const ResultCode closed = file.close();
    return synced.ok() ? closed : synced;
}

template <class Char>
void OStreamFile<Char>::close()
{
    std::lock_guard guard(m_lock);
    (void)m_file.close();
}

template class OStreamFile<wchar_t>;

} // namespace tessaly::io
