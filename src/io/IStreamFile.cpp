#include "io/IStreamFile.h"

#include "lib/err/ErrorCodes.h"

#include <algorithm>
#include <mutex>
#include <utility>

namespace tessaly::io {

namespace {

/// Some file systems give the size 0 for files that do hold something. Taken at their word, such a
/// file would count as empty, and its content as saved.
bool hidesItsSize(const platform::File& file, const platform::FileStatus& status)
{
    char byte = 0;
    std::size_t got = 0;
    return status.kind == platform::FileKind::Regular && status.size == 0 && file.read(&byte, 1, got).ok() &&
           got > 0;
}

} // namespace

template <class Char>
ResultCode IStreamFile<Char>::open(const std::basic_string<Char>& path)
{
    if (path.empty())
        return err::library(err::NullArgument);
    std::lock_guard guard(m_lock);
    if (m_file.isOpen())
        return err::library(err::AlreadyOpen);
    platform::File file;
    platform::FileStatus status;
    if (const ResultCode result = file.openForReading(path); !result.ok())
        return result;
    if (const ResultCode result = file.status(status); !result.ok())
        return result;
    if (hidesItsSize(file, status))
        return err::library(err::GetFileSizeFailed);
    m_file = std::move(file);
    m_status = status;
    m_position = 0;
    return {};
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
