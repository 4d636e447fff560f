#include "io/OStreamNewFile.h"

#include <mutex>
#include <utility>

namespace tessaly::io {

OStreamNewFile::OStreamNewFile(std::wstring path, platform::Access access)
    : m_path(std::move(path)), m_access(access)
{
}

ResultCode OStreamNewFile::create()
{
    if (isCreated() || !m_createError.ok())
        return m_createError;
    const ResultCode opened = m_stream.open(m_path, platform::Creation::CreateNew, m_access);
    if (opened.ok())
        m_created = m_stream.status();
    std::lock_guard guard(m_lock);
    m_createError = opened;
    return opened;
}

std::int64_t OStreamNewFile::write(const void* buffer, std::int64_t count)
{
    return create().ok() ? m_stream.write(buffer, count) : 0;
}

ResultCode OStreamNewFile::lastError() const
{
    std::lock_guard guard(m_lock);
    return m_createError.ok() ? m_stream.lastError() : m_createError;
}

ResultCode OStreamNewFile::finish()
{
    ResultCode result = create();
    if (result.ok())
        result = m_stream.finish();
    if (result.ok())
        result = platform::syncFolderOf(m_path);
    return result;
}

void OStreamNewFile::close()
{
    m_stream.close();
}

} // namespace tessaly::io
