#pragma once

#include "io/IRewindableBytes.h"
#include "lib/platform/File.h"
#include "lib/sync/Locker.h"

#include <string>

namespace tessaly::io {

/// A regular file to read. Its lock guards every member and is held only to copy; system calls run
/// outside it.
template <class Char>
class IStreamFile final : public IRewindableBytes
{
public:
    /// (5, 5) for an empty path, (5, 7) when already open, (5, 42) for what is no regular file, (5, 43)
    /// when the system does not tell the size of what the file holds, (1, system error) else.
    ResultCode open(const std::basic_string<Char>& path);
    /// Reads a file that is open; errors as above.
    ResultCode open(platform::File file);

    bool isAtStart() const override;
    bool isAtEnd() const override;
    [[nodiscard]] bool read(void* buffer, std::int64_t count, std::int64_t& countRead) override;
    std::int64_t size() const override;
    ResultCode lastError() const override;

    /// Up to the size that was found at opening.
    ResultCode rewind() override;

    /// The file as it was at opening.
    platform::FileStatus status() const;

private:
    bool isOpen() const;
    bool fail(ResultCode error);

    mutable sync::Locker m_lock;
    platform::File m_file;
    platform::FileStatus m_status;
    std::int64_t m_position = 0;
    ResultCode m_lastError;
};

extern template class IStreamFile<wchar_t>;

} // namespace tessaly::io
