#include "io/IStreamFile.h"

#include "lib/err/ErrorCodes.h"
#include "lib/platform/Path.h"

#include <algorithm>
#include <mutex>
#include <utility>

namespace tessaly::io {

namespace {

/// What the system opened may be something else than what stood there when the path was looked at. Some
/// file systems give the size 0 for files that do hold something: taken at their word, such a file would
/// count as empty, and its content as saved.
ResultCode examine(const platform::File& file, platform::FileStatus& status)
{
    if (const ResultCode result = file.status(status); !result.ok())
        return result;
    if (status.kind != platform::FileKind::Regular)
        return err::library(err::OpenFileFailed);
    char byte = 0;
    std::size_t got = 0;
    if (status.size == 0 && file.read(&byte, 1, got).ok() && got > 0)
        return err::library(err::GetFileSizeFailed);
    return {};
}

} // namespace

template <class Char>
ResultCode IStreamFile<Char>::open(const std::basic_string<Char>& path)
{
    if (path.empty())
        return err::library(err::NullArgument);
    if (isOpen())
        return err::library(err::AlreadyOpen);
    platform::File file;
    if (const ResultCode result = file.openForReading(platform::pathFromWide(path)); !result.ok())
        return result;
    return open(std::move(file));
}

template <class Char>
ResultCode IStreamFile<Char>::open(platform::File file)
{
    platform::FileStatus status;
    if (const ResultCode result = examine(file, status); !result.ok())
        return result;
    std::lock_guard guard(m_lock);
    if (m_file.isOpen())
        return err::library(err::AlreadyOpen);
    m_file = std::move(file);
    m_status = status;
    m_position = 0;
    return {};
}

template <class Char>
bool IStreamFile<Char>::isOpen() const
{
    std::lock_guard guard(m_lock);
    return m_file.isOpen();
}

template <class Char>
bool IStreamFile<Char>::isAtStart() const
{
    std::lock_guard guard(m_lock);
    return m_file.isOpen() && m_position == 0;
}

template <class Char>
bool IStreamFile<Char>::isAtEnd() const
{
    std::lock_guard guard(m_lock);
    return !m_file.isOpen() || m_position >= m_status.size;
}

template <class Char>
bool IStreamFile<Char>::read(void* buffer, std::int64_t count, std::int64_t& countRead)
{
    countRead = 0;
    std::int64_t left = 0;
    {
        std::lock_guard guard(m_lock);
        m_lastError = {};
        if (count < 1)
            return true;
        if (buffer == nullptr)
            return fail(err::library(err::NullArgument));
        if (!m_file.isOpen())
            return fail(err::library(err::StreamClosed));
        left = m_status.size - m_position;
    }
    if (left < 1)
        return false;

    std::size_t got = 0;
    const ResultCode result = m_file.read(buffer, static_cast<std::size_t>(std::min(left, count)), got);
    if (!result.ok())
        return fail(result);
    countRead = static_cast<std::int64_t>(got);
    std::lock_guard guard(m_lock);
    m_position += countRead;
    return true;
}

template <class Char>
ResultCode IStreamFile<Char>::rewind()
{
    const ResultCode result = m_file.seekToStart();
    std::lock_guard guard(m_lock);
    if (result.ok())
        m_position = 0;
    m_lastError = result;
    return result;
}

template <class Char>
bool IStreamFile<Char>::fail(ResultCode error)
{
    std::lock_guard guard(m_lock);
    m_lastError = error;
    return false;
}

template <class Char>
std::int64_t IStreamFile<Char>::size() const
{
    std::lock_guard guard(m_lock);
    return m_status.size;
}

template <class Char>
ResultCode IStreamFile<Char>::lastError() const
{
    std::lock_guard guard(m_lock);
    return m_lastError;
}

template <class Char>
platform::FileStatus IStreamFile<Char>::status() const
{
    std::lock_guard guard(m_lock);
    return m_status;
}

template class IStreamFile<wchar_t>;

} // namespace tessaly::io
