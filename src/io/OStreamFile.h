#pragma once

#include "io/OStreamBytes.h"
#include "lib/platform/File.h"
#include "lib/sync/Locker.h"

#include <string>

namespace tessaly::io {

/// A file to write; every write goes to its end, so an existing file is appended to. The lock
/// guards every member; system writes run outside it.
template <class Char>
class OStreamFile final : public OStreamBytes
{
public:
    /// (5, 5) for an empty path, (5, 7) when already open, (1, system error) else.
    ResultCode open(const std::basic_string<Char>& path,
                    platform::Creation creation = platform::Creation::OpenOrCreate,
                    platform::Access access = platform::Access::Default);

    [[nodiscard]] std::int64_t write(const void* buffer, std::int64_t count) override;
    ResultCode lastError() const override;

    platform::FileStatus status() const;

    /// Returns when all that was written has reached the disk, and closes the file. A failure means
    /// that the data may be lost, whatever the writes said. (5, 104) when closed already.
    ResultCode finish();
    void close();

private:
    ResultCode writeAll(const char* bytes, std::size_t count, std::int64_t& written);
    void keepDiskBusy(std::int64_t justWritten);

    mutable sync::Locker m_lock;
    platform::File m_file;
    ResultCode m_lastError;
    std::int64_t m_written = 0;      ///< writer only
    std::int64_t m_handedToDisk = 0; ///< writer only
};

extern template class OStreamFile<wchar_t>;

} // namespace tessaly::io
