#pragma once

#include "io/OStreamBytes.h"
#include "lib/platform/File.h"
#include "lib/sync/Locker.h"

#include <functional>
#include <string>

namespace tessaly::io {

/// A file to write; every write goes to its end, so an existing file is appended to. The lock guards
/// every member and is held only to copy; system calls run outside it, on the writer's thread.
template <class Char>
class OStreamFile final : public OStreamBytes
{
public:
    /// (5, 5) for an empty path, (5, 7) when already open, (1, system error) else.
    ResultCode open(const std::basic_string<Char>& path);
    /// Writes to a file that is open; (5, 7) as above.
    ResultCode open(platform::File file);

    [[nodiscard]] std::int64_t write(const void* buffer, std::int64_t count) override;
    ResultCode lastError() const override;

    /// The open file, for the writer's thread.
    const platform::File& file() const { return m_file; }
    /// Returns when all that was written has reached the disk. A failure means that the data may be
    /// lost, whatever the writes said. (5, 104) when not open.
    ResultCode flush();
    ResultCode close();

private:
    ResultCode writeAll(const char* bytes, std::size_t count, std::int64_t& written);
    void keepDiskBusy(std::int64_t justWritten);
    bool isOpen() const;

    mutable sync::Locker m_lock;
    platform::File m_file;
    ResultCode m_lastError;
    std::int64_t m_written = 0;      ///< writer only
    std::int64_t m_handedToDisk = 0; ///< writer only
};

extern template class OStreamFile<wchar_t>;

} // namespace tessaly::io
