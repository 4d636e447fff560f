#include "io/FilePlace.h"

#include "lib/err/ErrorCodes.h"

namespace tessaly::io {

ResultCode FilePlace::open(const std::filesystem::path& path)
{
    if (path.empty())
        return err::library(err::NullArgument);
    m_path = path;
    m_name = path.filename();
    return m_folder.openParentOf(path);
}

bool FilePlace::names(const platform::FileStatus& file) const
{
    const platform::FileStatus there = status();
    return !there.isLink && there.sameFile(file) && platform::fileStatus(m_path).sameFile(file);
}

ResultCode FilePlace::remove() const
{
    const ResultCode removed = m_folder.remove(m_name);
    return removed.ok() ? m_folder.sync() : removed;
}

} // namespace tessaly::io
