#pragma once

#include "lib/err/ResultCode.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace tessaly::platform {

/// A regular file, read from its start. For one thread at a time.
class TextFile final
{
public:
    TextFile() = default;
    ~TextFile() { close(); }
    TextFile(const TextFile&) = delete;
    TextFile& operator=(const TextFile&) = delete;

    /// Closes what was open before. Fails with the system's error, or with OpenFileFailed when the
    /// path names a device, a FIFO or a socket; those are neither read nor waited for.
    ResultCode open(const std::wstring& path);
    /// Reads up to size bytes; count is 0 at the end of the file.
    ResultCode read(char* buffer, std::size_t size, std::size_t& count);
    void close();

    bool isOpen() const { return m_handle != -1; }
    /// Bytes at the time of opening.
    std::uint64_t size() const { return m_size; }

private:
    std::intptr_t m_handle = -1;
    std::uint64_t m_size = 0;
};

} // namespace tessaly::platform
